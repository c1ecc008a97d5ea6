#pragma once
// The fast routes behind the number texts of zahltext.h. Where a route answers, its answer is
// exactly the C library's in the C locale; where it cannot be sure, it declines (false or
// nothing) and the caller asks the C library. The proof of each route's bound stands beside its
// code.

#include <optional>
#include <string_view>

namespace tabulon::zahlwege {

// The powers of ten that are exact doubles.
inline constexpr double zehnHoch[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                      1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                      1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The standard text of a non-zero finite x (printf's %.15g, with ".0" when it has neither point
// nor exponent), written to `puffer` (48 bytes); `ende` is set to the end of the text. The first
// route takes 1e-5 <= |x| < 1e15 by one multiplication, the second every normal double from its
// shortest digits; both decline near a tie.
bool zahlTextGanzzahlig(double x, char*& ende, char* puffer);
bool zahlTextKurz(double x, char*& ende, char* puffer);

// printf's %.*f with `stellen` decimals (at most 15), while |x| 10^stellen stays below 2^52.
bool festkommaGanzzahlig(double x, int stellen, char*& ende, char* puffer);

// strtod's value of a plain decimal literal that takes the whole text, for the literals where
// from_chars or one exact multiplication or division cannot differ from it.
std::optional<double> text2ZahlSchnell(std::string_view text);

} // namespace tabulon::zahlwege
