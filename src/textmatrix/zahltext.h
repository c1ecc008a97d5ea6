#pragma once
// Number rules shared by the whole system. Text becomes a number exactly as the C library's
// strtod does it in the C locale, and numbers become text as printf does it in the C locale,
// whatever locale the user runs: a German locale would write a decimal comma, we never do.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tabulon {

// The whole text must be one floating-point literal (leading white space allowed). "" gives 0.
// "5 ", "1,5", "1/2", "1e999" and texts of blanks only give nothing. An underflowing literal
// ("1e-400") converts to the subnormal or zero that strtod returns; only overflow is refused.
std::optional<double> text2Zahl(std::string_view text);

// The standard text of a double: %.15g, followed by ".0" when the text holds neither a point,
// nor an 'e', nor an 'n' (2 -> "2.0", -0.0 -> "-0.0", 1e-7 -> "1e-07"). Every NaN is "nan",
// whatever its sign bit (the C library would print "-nan" for x86's 0/0).
std::string zahlText(double x);

// The same text written into `ziel`, whose storage is reused: a matrix of texts filled again
// and again allocates nothing once its texts have grown.
void zahlTextIn(std::string& ziel, double x);

// The full-precision text: the same with 17 significant digits (0.1 -> "0.10000000000000001").
std::string zahlTextVoll(double x);

// An integer in plain decimal, the same in every locale.
std::string ganzText(std::int64_t n);

// printf("%.<amount>f") in the C locale, without the threshold of round(amount:).
std::string festkomma(double x, int amount);

// round(amount:): values below 10^-(amount+1) in magnitude become 0 first, then the value is
// written with `amount` digits after the point. The commands pass the decimals setting as
// `amount`.
std::string round(double x, int amount);

// Seven decimals, half away from zero; magnitudes below 1e-07 become exactly 0.
double xrunden(double x);

// The integer value of a text field: leading white space skipped, an optional sign and the
// leading digits taken, 0 when the text does not begin with a number (like atoi, saturating).
int intWert(std::string_view text);

// The double value of a text field: the longest leading literal as strtod reads it in the C
// locale, 0.0 when the text does not begin with a number.
double doubleWert(std::string_view text);

// A strict whole number: the whole text is an optional sign followed by decimal digits and
// fits into an int; otherwise nothing.
std::optional<int> strengeGanzzahl(std::string_view text);

} // namespace tabulon
