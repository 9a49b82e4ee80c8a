#pragma once

#include <string>

/// What all screens hold, for tests that look at the whole system at once.
namespace varenta::teste {

/// Every loaded screen with its title, flags and all that its controls hold, as text: equal texts are equal
/// states. A drawing stands there as its strokes' digest.
std::string estadoDasTelas();

/// The first control that shows a number which is none (a word "nan" or "inf", a stroke with a coordinate
/// that is not finite), by its full name; empty where there is none. Controls that a person types into are
/// left out.
std::string primeiroNãoFinito();

/// The first control whose record contradicts itself (a scroll bar outside its range, a grid whose cells
/// don't fit its size, two options of a group set), by its full name; empty where there is none.
std::string primeiroIncoerente();

} // namespace varenta::teste
