#include "module/RunDialog.h"

#include "module/CommandDialog.h"
#include "module/DialogRegistry.h"

namespace ortakit {

namespace {

template <class Values, class MakeLink>
OdResBufPtr listOf(const Values &values, MakeLink makeLink)
{
    OdResBufPtr list = OdResBuf::newRb(OdResBuf::kRtListBegin);
    OdResBuf *last = list.get();
    for (const auto &value : values)
        last = last->setNext(makeLink(value));
    last->setNext(OdResBuf::newRb(OdResBuf::kRtListEnd));
    return list;
}

} // namespace

CKvDialog *findDialog(const CKvDocument &document, DialogSlot slot, CKvDialog *(*create)(QWidget *parent))
{
    return DialogRegistry::instance().dialog(&document, slot, create, dialogParent());
}

bool areAcceptable(const OdResBuf *first, FirstArgument firstArgument, ExtraArguments extra)
{
    if (extra == ExtraArguments::RequiredSecond && !(first && first->next()))
        return false;
    switch (firstArgument) {
    case FirstArgument::String:
        return first && first->restype() == OdResBuf::kRtString;
    case FirstArgument::Present:
        return first;
    case FirstArgument::Optional:
        return true;
    }
    return false;
}

QStringList strings(const OdResBuf *rest)
{
    QStringList found;
    for (const OdResBuf *link = rest; link; link = link->next()) {
        if (link->restype() == OdResBuf::kRtString)
            found.append(link->getString());
    }
    return found;
}

OdResBufPtr stringList(const QStringList &strings)
{
    return listOf(strings, [](const QString &string) { return OdResBuf::newString(OdResBuf::kRtString, string); });
}

OdResBufPtr shortList(const QList<int> &numbers)
{
    return listOf(numbers, [](int number) { return OdResBuf::newInteger(OdResBuf::kRtShort, number); });
}

QList<QStringList> stringLists(const OdResBuf *rest)
{
    QList<QStringList> lists;
    int depth = 0;
    for (const OdResBuf *link = rest; link; link = link->next()) {
        const int type = link->restype();
        const bool opens = type == OdResBuf::kRtListBegin;
        if (depth == 0 && (opens || type == OdResBuf::kRtNil))
            lists.append(QStringList());
        else if (depth > 0 && type == OdResBuf::kRtString)
            lists.last().append(link->getString());
        if (opens)
            ++depth;
        else if (depth > 0 && (type == OdResBuf::kRtListEnd || type == OdResBuf::kRtDottedPair))
            --depth;
    }
    return lists;
}

void releaseArguments(CKvLispEngine &lisp, ExtraArguments extra)
{
    OdResBuf *first = lisp.arguments();
    switch (extra) {
    case ExtraArguments::None:
        return lisp.releaseArguments(first);
    case ExtraArguments::OptionalSecond:
    case ExtraArguments::RequiredSecond:
        return lisp.releaseArguments(first && first->next() ? first->next() : first);
    case ExtraArguments::List:
        return;
    }
}

} // namespace ortakit
