#pragma once

#include "Supply.h"
#include "platform/kernel/CKvSelectionInput.h"
#include "platform/kernel/CKvUserInput.h"

#include <functional>

namespace sample {

/// Prompts of a document: printed, and answered by what was queued before and then by lines of standard input. At its
/// end every prompt is cancelled.
class UserInput final : public CKvUserInput
{
public:
    /// Answers the next prompts, before standard input does.
    void queue(const QStringList &answers) { m_queue += answers; }
    void clearQueue() { m_queue.clear(); }

    void initget(int bits, const QStringList &keywords) override { m_next = {bits, keywords}; }
    OdString formatPrompt(const OdString &prompt, const OdString &defaultText) const override;
    OdString lengthText(double length) const override { return OdString::number(length, 'g', 15); }
    OdString angleText(double angle) const override;

    int getInteger(const OdString &prompt, bool hasDefault, qint32 &value) override;
    int getReal(const OdString &prompt, bool hasDefault, double &value) override;
    int getDistance(const OdString &prompt, const std::optional<OdGePoint3d> &, bool hasDefault, double &value) override
    {
        return getReal(prompt, hasDefault, value);
    }
    int getAngle(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                 double &value) override;
    int getPoint(const OdString &prompt, const std::optional<OdGePoint3d> &base, OdGePoint3d &value) override;
    int getCorner(const OdString &prompt, const OdGePoint3d &base, OdGePoint3d &value) override
    {
        return getPoint(prompt, base, value);
    }
    int getString(const OdString &prompt, bool allowSpaces, OdString &value) override;
    int getKeyword(const OdString &prompt, OdString &value) override;
    OdString input() const override { return m_keyword; }

private:
    /// What initget() said for one request.
    struct Options
    {
        int bits = 0;
        QStringList keywords;
    };
    /// Takes an answer as the value that was asked for; false when it is none.
    using Take = std::function<bool(const QString &answer)>;

    int ask(const QString &prompt, bool hasDefault, const Take &take);
    std::optional<QString> answer(const QString &prompt);
    /// The number that was typed, unless it is none or initget() excludes it.
    std::optional<double> numberIn(const QString &typed) const;

    QStringList m_queue;
    Options m_next;    ///< for the next request
    Options m_current; ///< of the one that runs
    QString m_keyword;
};

/// Choosing entities, of which there are none: every request counts as cancelled.
class SelectionInput final : public CKvSelectionInput
{
public:
    int select(const KvSelectionRequest &, OdDbObjectIdArray &, OdString &) override
    {
        return cancelled("CKvSelectionInput::select");
    }
    int keepMatching(OdDbObjectIdArray &, const OdResBuf *, OdString &) const override
    {
        return cancelled("CKvSelectionInput::keepMatching");
    }
    int pickEntity(const OdString &, OdDbObjectId &, OdGePoint3d &) override
    {
        return cancelled("CKvSelectionInput::pickEntity");
    }
    int drag(const OdDbObjectIdArray &, const OdGePoint3d &, const OdString &, OdGePoint3d &) override
    {
        return cancelled("CKvSelectionInput::drag");
    }

private:
    static int cancelled(const char *call)
    {
        notSupplied(call);
        return kRtCancel;
    }
};

} // namespace sample
