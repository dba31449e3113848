#include "host/app/playback/PlaybackVerbs.h"

#include <algorithm>

namespace host::app {

namespace {

constexpr VerbRow verbRows[] = {
    {"part", Verb::Part, VerbKind::Structure, "w?w*"},
    {"end", Verb::End, VerbKind::Structure, ""},
    {"play", Verb::Play, VerbKind::Structure, "w?r"},
    {"case", Verb::Case, VerbKind::Structure, "t"},
    {"drawing", Verb::Drawing, VerbKind::Structure, "t"},
    {"command", Verb::Command, VerbKind::Start, "w"},
    {"lisp", Verb::Lisp, VerbKind::Start, "r"},
    {"cancel-each", Verb::CancelEach, VerbKind::Start, ""},
    {"undo", Verb::Undo, VerbKind::Start, ""},
    {"redo", Verb::Redo, VerbKind::Start, ""},
    {"save", Verb::Save, VerbKind::Start, "?t"},
    {"write", Verb::Write, VerbKind::Start, "wt"},
    {"let", Verb::Let, VerbKind::Start, "wr"},
    {"only-if", Verb::OnlyIf, VerbKind::Start, "r"},
    {"panel", Verb::Panel, VerbKind::Start, "w"},
    {"expect-lisp", Verb::ExpectLisp, VerbKind::Start, "r"},
    {"expect-error", Verb::ExpectError, VerbKind::Start, "t"},
    {"expect-undo", Verb::ExpectUndo, VerbKind::Start, ""},
    {"answer", Verb::Answer, VerbKind::Answer, "t"},
    {"point", Verb::Point, VerbKind::Answer, "p"},
    {"pick", Verb::Pick, VerbKind::Answer, "p"},
    {"hover", Verb::Hover, VerbKind::Answer, "p"},
    {"pickhandle", Verb::PickHandle, VerbKind::Answer, "h?p"},
    {"window", Verb::Window, VerbKind::Answer, "pp"},
    {"crossing", Verb::Crossing, VerbKind::Answer, "pp"},
    {"select", Verb::Select, VerbKind::Answer, "w*"},
    {"enter", Verb::Enter, VerbKind::Answer, ""},
    {"cancel", Verb::Cancel, VerbKind::Answer, ""},
    {"abandon", Verb::Abandon, VerbKind::Answer, ""},
    {"dialog", Verb::Dialog, VerbKind::Opening, "w"},
    {"message", Verb::Message, VerbKind::Opening, "ww"},
    {"file", Verb::File, VerbKind::Opening, "t"},
    {"menu", Verb::Menu, VerbKind::Opening, "t"},
    {"set", Verb::Set, VerbKind::Widget, "wt"},
    {"type", Verb::Type, VerbKind::Widget, "wt"},
    {"key", Verb::Key, VerbKind::Widget, "ww"},
    {"check", Verb::Check, VerbKind::Widget, "wb"},
    {"focus", Verb::Focus, VerbKind::Widget, "w"},
    {"click", Verb::Click, VerbKind::Widget, "w"},
    {"double-click", Verb::DoubleClick, VerbKind::Widget, "w?t"},
    {"row", Verb::Row, VerbKind::Widget, "ww*"},
    {"check-row", Verb::CheckRow, VerbKind::Widget, "wwb"},
    {"cell", Verb::Cell, VerbKind::Widget, "wnnt"},
    {"close", Verb::Close, VerbKind::Widget, ""},
    {"expect", Verb::Expect, VerbKind::Widget, "wt"},
    {"expect-items", Verb::ExpectItems, VerbKind::Widget, "wt"},
    {"expect-enabled", Verb::ExpectEnabled, VerbKind::Widget, "wb"},
    {"expect-visible", Verb::ExpectVisible, VerbKind::Widget, "wb"},
    {"expect-focus", Verb::ExpectFocus, VerbKind::Widget, "w"},
    {"expect-title", Verb::ExpectTitle, VerbKind::Widget, "t"},
    {"view", Verb::View, VerbKind::Anywhere, "pp"},
    {"expect-printed", Verb::ExpectPrinted, VerbKind::Anywhere, "t"},
    {"expect-not-printed", Verb::ExpectNotPrinted, VerbKind::Anywhere, "t"},
    {"expect-modified", Verb::ExpectModified, VerbKind::Anywhere, "b"},
    {"expect-unchanged", Verb::ExpectUnchanged, VerbKind::Anywhere, ""},
    {"expect-changes", Verb::ExpectChanges, VerbKind::Anywhere, "t"},
    {"expect-file-changes", Verb::ExpectFileChanges, VerbKind::Anywhere, "wt"},
    {"expect-count", Verb::ExpectCount, VerbKind::Anywhere, "wn"},
    {"expect-sound", Verb::ExpectSound, VerbKind::Anywhere, "?t"},
    {"expect-file", Verb::ExpectFile, VerbKind::Anywhere, "w?t"},
    {"expect-no-file", Verb::ExpectNoFile, VerbKind::Anywhere, "w"},
    {"expect-text", Verb::ExpectText, VerbKind::Anywhere, "wt"},
    {"expect-same-file", Verb::ExpectSameFile, VerbKind::Anywhere, "ww"},
    {"screenshot", Verb::Screenshot, VerbKind::Anywhere, "t"},
};

} // namespace

const VerbRow *findVerb(QStringView name)
{
    const auto row = std::find_if(std::begin(verbRows), std::end(verbRows),
                                  [&](const VerbRow &candidate) { return name == QLatin1StringView(candidate.name); });
    return row == std::end(verbRows) ? nullptr : row;
}

const VerbRow &rowOf(Verb verb)
{
    return *std::find_if(std::begin(verbRows), std::end(verbRows),
                         [&](const VerbRow &candidate) { return candidate.verb == verb; });
}

QStringList playbackVerbs()
{
    QStringList names;
    for (const VerbRow &row : verbRows)
        names.append(QLatin1StringView(row.name));
    return names;
}

} // namespace host::app
