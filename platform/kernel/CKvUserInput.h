#pragma once

#include "platform/kernel/OdResBuf.h"

#include <QStringList>

#include <optional>

/// Asks the user of one document for values, on the command line or in the drawing. Every request runs until it is
/// answered and gives a KvResult code: 5100 and the value, 5000 for an empty answer without a default, -5002 when the
/// user cancelled, -5005 when a keyword of the last initget() was entered (input() has it). On any other code than 5100
/// the value is left as it was, but for a string, which a keyword answer empties.
class KV_EXPORT CKvUserInput
{
public:
    virtual ~CKvUserInput() = default;

    /// Option bits and keywords for the next request only, whatever comes of it; formatPrompt() shows them until then.
    /// Bits: 1 no empty answer, 2 no zero, 4 no negative value, 8 points outside the limits are fine, 32 dashed rubber
    /// band, 64 two-dimensional distance, 128 any text counts as a keyword. Of a keyword, the upper-case letters alone
    /// suffice as the answer. A keyword may be a pair of what is shown and, behind a comma, the keyword itself: of ".
    /// for none,." the user sees ". for none", types "." and input() gives ".".
    virtual void initget(int bits, const QStringList &keywords) = 0;
    /// The prompt as it is shown: with its keywords, the default in angle brackets when there is one, and a colon.
    virtual OdString formatPrompt(const OdString &prompt, const OdString &defaultText) const = 0;
    /// A length, and an angle in radians, as the drawing's units write it, with no fewer digits than it takes to read
    /// it back as the same.
    virtual OdString lengthText(double length) const = 0;
    virtual OdString angleText(double angle) const = 0;

    /// An empty answer gives `value` as it came in where `hasDefault` says so.
    virtual int getInteger(const OdString &prompt, bool hasDefault, qint32 &value) = 0;
    virtual int getReal(const OdString &prompt, bool hasDefault, double &value) = 0;
    /// A distance typed, or shown by one or two points; from `base` (world coordinates) where it is given.
    virtual int getDistance(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                            double &value) = 0;
    /// An angle in radians, typed in the drawing's angle units or shown by points.
    virtual int getAngle(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                         double &value) = 0;
    /// Points are in world coordinates.
    virtual int getPoint(const OdString &prompt, const std::optional<OdGePoint3d> &base, OdGePoint3d &value) = 0;
    /// The corner opposite to `base`.
    virtual int getCorner(const OdString &prompt, const OdGePoint3d &base, OdGePoint3d &value) = 0;
    /// Text; an empty answer is 5100 with `value` as it came in, empty or not. Without `allowSpaces` a blank ends the
    /// answer.
    virtual int getString(const OdString &prompt, bool allowSpaces, OdString &value) = 0;
    /// One of the keywords, which is the value here: 5100 and `value`, spelled as initget() got it. An empty answer
    /// gives `value` as it came in where that is not empty.
    virtual int getKeyword(const OdString &prompt, OdString &value) = 0;

    /// The keyword that ended the last request with -5005, spelled as initget() got it.
    virtual OdString input() const = 0;
};
