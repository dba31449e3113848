#include "host/units/AsciiText.h"
#include "host/units/Units.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <numeric>

namespace host::units {

static std::string formatted(const char *format, int precision, double number)
{
    const int length = std::snprintf(nullptr, 0, format, precision, number);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::snprintf(text.data(), text.size() + 1, format, precision, number);
    return text;
}

/// A number of decimals. What lies exactly between two is rounded away from zero, where printf takes the even one.
static std::string decimal(int precision, double number)
{
    const bool isTie = std::fmod(std::ldexp(std::fabs(number), precision + 1), 2.0) == 1.0;
    return formatted("%.*f", precision, isTie ? std::nextafter(number, std::copysign(HUGE_VAL, number)) : number);
}

/// Zeros as DIMZIN's bits 4 and 8 want them.
static std::string withZeros(std::string text, int zeros)
{
    if ((zeros & 8) != 0 && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    if ((zeros & 4) != 0 && text.starts_with("0."))
        text.erase(0, 1);
    return text;
}

static std::string wholeText(double number)
{
    return decimal(0, number);
}

/// A length as a whole number and a fraction of inches, rounded to the precision wanted.
struct Inches
{
    double whole = 0;
    std::string fraction; ///< "1/2"; empty for none
};

static Inches roundToFraction(double length, int precision)
{
    const int denominator = 1 << std::clamp(precision, 0, 8);
    const double whole = std::floor(length);
    int numerator = static_cast<int>(std::lround((length - whole) * denominator));
    if (numerator == 0 || numerator == denominator)
        return {whole + (numerator == 0 ? 0 : 1), {}};
    const int divisor = std::gcd(numerator, denominator);
    return {whole, std::to_string(numerator / divisor) + "/" + std::to_string(denominator / divisor)};
}

static std::string fractional(double length, int precision)
{
    const Inches inches = roundToFraction(length, precision);
    if (inches.fraction.empty())
        return wholeText(inches.whole);
    return inches.whole > 0 ? wholeText(inches.whole) + " " + inches.fraction : inches.fraction;
}

/// Puts feet and inches together. `inches` is empty for exactly none; `bareInches` is the text to use without feet.
static std::string feetAndInches(double feet, const std::string &inches, const std::string &bareInches, int zeros)
{
    const int choice = zeros & 3;
    const bool showsZeroFeet = choice == 1 || choice == 2;
    const bool showsZeroInches = choice == 1 || choice == 3;
    if (feet == 0 && !showsZeroFeet)
        return (bareInches.empty() ? "0" : bareInches) + "\"";
    if (inches.empty() && !showsZeroInches && feet > 0)
        return wholeText(feet) + "'";
    return wholeText(feet) + "'-" + (inches.empty() ? "0" : inches) + "\"";
}

static std::string architectural(double length, const DistanceFormat &format)
{
    const Inches total = roundToFraction(length, format.precision);
    const double feet = std::floor(total.whole / 12);
    const double whole = total.whole - feet * 12;
    if (total.fraction.empty()) {
        const std::string text = whole == 0 ? "" : wholeText(whole);
        return feetAndInches(feet, text, text, format.zeros);
    }
    const std::string inches = wholeText(whole) + " " + total.fraction;
    return feetAndInches(feet, inches, whole == 0 ? total.fraction : inches, format.zeros);
}

static std::string engineering(double length, const DistanceFormat &format)
{
    double feet = std::floor(length / 12);
    std::string inches = decimal(format.precision, length - feet * 12);
    if (leadingNumber(inches) >= 12) {
        feet += 1;
        inches = decimal(format.precision, 0.0);
    }
    const bool isZero = inches.find_first_not_of("0.") == std::string::npos;
    if (isZero && feet > 0 && (format.zeros & 1) == 0)
        inches.clear();
    inches = withZeros(std::move(inches), format.zeros);
    return feetAndInches(feet, inches, inches, format.zeros);
}

std::string formatDistance(double distance, const DistanceFormat &wanted)
{
    DistanceFormat format = wanted;
    format.precision = std::clamp(format.precision, 0, 16);
    if (!std::isfinite(distance))
        return std::isnan(distance) ? "nan" : distance < 0 ? "-inf" : "inf";
    const double length = std::fabs(distance);
    std::string text;
    switch (format.mode) {
    case DistanceFormat::Scientific:
        text = formatted("%.*E", format.precision, length);
        break;
    case DistanceFormat::Engineering:
        text = engineering(length, format);
        break;
    case DistanceFormat::Architectural:
        text = architectural(length, format);
        break;
    case DistanceFormat::Fractional:
        text = fractional(length, format.precision);
        break;
    default:
        text = withZeros(decimal(format.precision, length), format.zeros);
    }
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return distance < 0 && !isZero ? "-" + text : text;
}

double leadingNumber(std::string_view text, std::size_t *length)
{
    std::size_t begin = 0;
    while (begin < text.size() && isBlank(text[begin]))
        ++begin;
    const bool hasPlus = begin < text.size() && text[begin] == '+';
    const std::size_t digits = begin + (hasPlus ? 1 : 0);
    std::size_t first = digits;
    if (!hasPlus && first < text.size() && text[first] == '-')
        ++first;
    if (length)
        *length = 0;
    // Keeps out "inf" and "nan", which from_chars would take.
    if (first >= text.size() || (text[first] != '.' && (text[first] < '0' || text[first] > '9')))
        return 0;
    double number = 0;
    const auto result = std::from_chars(text.data() + digits, text.data() + text.size(), number);
    if (result.ec == std::errc::invalid_argument)
        return 0;
    if (result.ec == std::errc::result_out_of_range)
        number = std::strtod(std::string(text.data() + digits, result.ptr).c_str(), nullptr);
    if (length)
        *length = static_cast<std::size_t>(result.ptr - text.data());
    return number;
}

namespace {

/// Reads feet, inches and fractions from front to back.
class DistanceParser
{
public:
    explicit DistanceParser(std::string_view text) : m_text(text) {}

    std::optional<double> parse()
    {
        skipBlanks();
        const double sign = take('-') ? -1 : 1;
        if (sign > 0)
            take('+');
        double total = 0;
        bool isAny = false;
        if (std::optional<double> part = mixedNumber()) {
            isAny = true;
            total = *part;
            if (take('\'')) {
                total *= 12;
                skipBlanks();
                take('-');
                if (const std::optional<double> inches = mixedNumber())
                    total += *inches;
            }
            take('"');
        }
        skipBlanks();
        if (!isAny || !m_text.empty())
            return std::nullopt;
        return sign * total;
    }

private:
    void skipBlanks()
    {
        while (!m_text.empty() && isBlank(m_text.front()))
            m_text.remove_prefix(1);
    }

    bool take(char c)
    {
        if (!m_text.starts_with(c))
            return false;
        m_text.remove_prefix(1);
        return true;
    }

    std::optional<double> number()
    {
        std::size_t length = 0;
        if (m_text.empty() || m_text.front() == '-' || m_text.front() == '+')
            return std::nullopt;
        const double value = leadingNumber(m_text, &length);
        m_text.remove_prefix(length);
        return length > 0 ? std::optional(value) : std::nullopt;
    }

    /// `17`, `17.5`, `1/2`, `17 1/2` or `17-1/2`.
    std::optional<double> mixedNumber()
    {
        skipBlanks();
        const std::optional<double> first = number();
        if (!first)
            return std::nullopt;
        if (const std::optional<double> quotient = over(*first))
            return quotient;
        const std::string_view before = m_text;
        if (!take('-'))
            skipBlanks();
        if (const std::optional<double> second = number()) {
            if (const std::optional<double> quotient = over(*second))
                return *first + *quotient;
        }
        m_text = before;
        return first;
    }

    /// The quotient, when a slash and a divisor follow.
    std::optional<double> over(double dividend)
    {
        const std::string_view before = m_text;
        if (take('/')) {
            const std::optional<double> divisor = number();
            if (divisor && *divisor != 0)
                return dividend / *divisor;
        }
        m_text = before;
        return std::nullopt;
    }

    std::string_view m_text;
};

} // namespace

std::optional<double> parseDistance(std::string_view text, int mode)
{
    if (mode >= DistanceFormat::Engineering && mode <= DistanceFormat::Fractional)
        return DistanceParser(text).parse();
    std::size_t length = 0;
    const double number = leadingNumber(text, &length);
    const bool isWhole =
        length > 0 && std::all_of(text.begin() + static_cast<std::ptrdiff_t>(length), text.end(), isBlank);
    return isWhole ? std::optional(number) : std::nullopt;
}

} // namespace host::units
