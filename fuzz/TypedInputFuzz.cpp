// Any text as what is typed and as a script: lengths, angles and points read back as what they were written from, a
// keyword's answer answers the same again, and the queue hands out every letter once, however the text came.

#include "fuzz/Require.h"
#include "host/kernel/input/InputQueue.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/PointEntry.h"

#include <cmath>
#include <numbers>

using namespace host::kernel;

namespace {

void checkLength(const UnitFormat &units, const QString &text)
{
    const std::optional<double> value = units.parseLength(text);
    if (!value)
        return;
    require(!std::isnan(*value));
    // The notations with fractions and feet have no exponents.
    if (std::abs(*value) > 1e-3 && std::abs(*value) < 1e9) {
        const std::optional<double> again = units.parseLength(units.exactLength(*value));
        require(again && std::abs(*again - *value) <= 0.01 * (1.0 + std::abs(*value)));
    }
}

void checkAngle(const UnitFormat &units, const QString &text)
{
    constexpr double turn = 2.0 * std::numbers::pi;
    for (const std::optional<double> &value : {units.parseAngle(text), units.parseDirection(text)})
        require(!value || (*value >= 0.0 && *value < turn));
    if (const std::optional<double> value = units.parseAngle(text)) {
        const std::optional<double> again = units.parseAngle(units.exactAngle(*value));
        require(again && std::abs(std::remainder(*again - *value, turn)) <= 1e-3);
    }
}

void checkPoint(const UnitFormat &units, const QString &text)
{
    const PointContext context{units, {3.0, 4.0, 5.0}, 7.0};
    const std::optional<TypedPoint> typed = parsePoint(text, context);
    if (!typed)
        return;
    const host::drawing::Vec3 &point = typed->point;
    require(std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z));
    require(typed->isWorld == text.trimmed().startsWith(u'*'));
}

void checkKeywords(const QString &text)
{
    const QStringList lines = text.split(u'\n');
    const QStringList keywords = lines.mid(1);
    const QString prompt = formatPrompt(lines.first(), keywords, QStringLiteral("default"));
    require(prompt.endsWith(QStringLiteral(": ")) &&
            formatPrompt(prompt, keywords, QStringLiteral("default")) == prompt);
    if (const std::optional<QString> answer = matchKeyword(lines.first(), keywords)) {
        const auto gives = [&](const QString &keyword) { return keywordAnswer(keyword) == *answer; };
        require(std::ranges::any_of(keywords, gives));
    }
}

PromptRequest request(std::size_t step)
{
    PromptRequest asked;
    asked.kind = std::array{PromptKind::Command, PromptKind::Point, PromptKind::String}[step % 3];
    asked.allowSpaces = step % 2 == 1;
    asked.forCommand = step % 5 == 0;
    return asked;
}

QStringList tokens(const QStringList &pieces)
{
    InputQueue queue;
    for (const QString &piece : pieces)
        queue.pushTyped(piece);
    QStringList taken;
    std::size_t step = 0;
    while (!queue.isEmpty()) {
        const std::optional<InputAnswer> answer = queue.take(request(step++));
        if (!answer)
            break;
        taken.append(std::get<TextAnswer>(*answer).text);
    }
    return taken;
}

void checkQueue(const QString &text)
{
    const QStringList taken = tokens({text});
    // Each takes a letter at least, be it the blank that ends it.
    require(taken.size() <= text.size() + 1);
    qsizetype from = 0;
    for (const QString &token : taken) {
        from = text.indexOf(token, from);
        require(from >= 0);
        from += token.size();
    }
    QStringList lines = text.split(u'\n');
    if (lines.size() > 1 && lines.last().isEmpty())
        lines.removeLast();
    require(tokens(lines) == taken);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    UnitFormat units;
    units.lengthMode = 1 + data[0] % 5;
    units.angleMode = data[0] / 5 % 5;
    units.lengthPrecision = data[1] % 9;
    units.anglePrecision = data[1] / 9 % 9;
    units.zeros = data[1] % 16;
    units.isClockwise = data[1] >= 128;
    units.angleBase = data[0] / 25 * 0.5;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 2), qsizetype(size - 2));
    checkLength(units, text);
    checkAngle(units, text);
    checkPoint(units, text);
    checkKeywords(text);
    checkQueue(text);
    return 0;
}
