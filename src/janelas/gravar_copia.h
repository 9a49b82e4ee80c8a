#pragma once

#include <string>
#include <string_view>

/// Writes what a person saves of a window, a table or a figure: over an existing file only after a question.
/// A failure is told, and leaves that file as it was.
void gravarCópia(const std::string& caminho, std::string_view bytes);
