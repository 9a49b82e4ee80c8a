#pragma once

#include "comum/desenho.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// What all screens hold, for tests that look at the whole system at once.
namespace varenta::teste {

/// Every loaded screen with its title, flags and all that its controls hold, as text: equal texts are equal
/// states. A drawing stands there as its strokes' digest. Hidden controls that are enabled are left out: an
/// entry line out of use holds what it last held, and takes its cell's text when it comes back.
std::string estadoÀVista();

/// A digest of strokes: that of others differs.
std::uint64_t resumoDosTraços(std::span<const Traço> traços);

/// Whether the text shows a number that is none: a word "nan" or "inf".
bool nãoÉNúmero(std::string_view texto);

/// The first control that shows a number which is none (a word "nan" or "inf", a stroke with a coordinate
/// that is not finite), by its full name; empty where there is none. Controls that a person types into are
/// left out.
std::string primeiroNãoFinito();

/// The first control whose record contradicts itself (a scroll bar outside its range, a grid whose cells
/// don't fit its size, two options of a group set), by its full name; empty where there is none.
std::string primeiroIncoerente();

} // namespace varenta::teste
