#pragma once

namespace varenta {

/// Draws `Form5`'s sketch to scale, ahead of the sprinkler upward: two lanes, the wetted sector where the
/// cart starts and where it stops, the carrier lane and the lengths of both ends, and writes their captions.
/// A length that is no number counts as 0, one of an end that is longer than the reach as the reach.
void desenharEsboço();

} // namespace varenta
