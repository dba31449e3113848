#pragma once

#include "tests/kernel/Bench.h"

/// What Esc at a prompt of the dialogue leaves.
enum class Esc
{
    LeavesNothing,
    Keeps ///< each answer is a step that stays
};

/// A command with its answers, "|" between them.
struct DialogueCase
{
    const char *name;
    const char *setUp; ///< Lisp, with the helpers that the fixture defines; may begin with axes: "turned" or "tilted"
    const char *dialogue;
    const char *expected; ///< the drawing's entities as dump() writes them, or the value of `look`
    const char *printed = "";
    Esc esc = Esc::LeavesNothing;
    const char *look = nullptr; ///< Lisp
};

std::ostream &operator<<(std::ostream &stream, const DialogueCase &row);

/// Plays a row in each way that answers can come.
class CommandDialogue : public Bench, public testing::WithParamInterface<DialogueCase>
{
protected:
    CommandDialogue();
    void setUp();
    /// "CIRCLE 10=5,0,0 40=5": the entities with their fields, without what all have and without zeros.
    std::string dump();
    QByteArray bytes() { return drawing().toBytes(); }
    QStringList answers() const { return QString::fromUtf8(GetParam().dialogue).split(u'|'); }
    /// The answers as arguments of (command).
    static std::string arguments(const QStringList &answers);
    void expectResult(const char *way);
};
