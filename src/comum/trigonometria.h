#pragma once

/// Sines, cosines and arc tangents that are the same on every machine. The C library picks one of several
/// routines by the processor, and their last bits differ; these are made of the four operations alone, with
/// twice the precision of a double, and rounded once at the end. So they are the doubles nearest to the true
/// values, short of a tie that no angle comes near. They take some 0.2 us: for what is done once, or seldom.
namespace varenta {

/// Of an angle in radians. Beyond 2^20, where no direction lies, they are the library's.
struct SenoECosseno {
    double seno, cosseno;
};
SenoECosseno senoECosseno(double x);

/// Of an angle as above.
double tangente(double x);

/// 1 / tan(x), as the quotient of 1 and the double nearest to the tangent; infinite at 0.
double cotangente(double x);

/// In radians, between -pi/2 and pi/2; of any finite number.
double arcoTangente(double t);

} // namespace varenta
