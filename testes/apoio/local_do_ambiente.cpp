#include <clocale>

// A program of tests keeps to the locale that it is started in, as a program with windows does: no figure may
// hang on it.
namespace {
[[maybe_unused]] const char* const local = std::setlocale(LC_ALL, "");
}
