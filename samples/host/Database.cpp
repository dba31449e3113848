#include "Database.h"

#include "Editor.h"
#include "Supply.h"
#include "platform/db/RText.h"

namespace sample {

namespace {

const QString wipeoutFrame = QStringLiteral("WIPEOUTFRAME");

/// A link of its own with the same value. What kind of value it has follows from its group code, as everywhere in DXF.
OdResBufPtr copyOf(const OdResBuf &link)
{
    const int code = link.restype();
    const int group = code % 1000;
    if (group >= 10 && group <= 39)
        return OdResBuf::newPoint(code, link.getPoint3d());
    if ((group >= 40 && group <= 59) || (group >= 140 && group <= 149))
        return OdResBuf::newReal(code, link.getDouble());
    const bool isInteger = (group >= 60 && group <= 99) || (group >= 160 && group <= 179) ||
                           (group >= 270 && group <= 299) || (group >= 370 && group <= 389) ||
                           (group >= 400 && group <= 409) || (group >= 420 && group <= 459);
    return isInteger ? OdResBuf::newInteger(code, link.getInteger()) : OdResBuf::newString(code, link.getString());
}

class Xrecord final : public OdDbXrecord
{
public:
    OdResBufPtr rbChain() const override { return copied(m_chain.get()); }
    bool setFromRbChain(const OdResBuf *chain) override
    {
        m_chain = copied(chain);
        return true;
    }

private:
    /// The chain that is passed in stays the caller's, and the one that is handed out becomes the caller's.
    static OdResBufPtr copied(const OdResBuf *chain)
    {
        if (!chain)
            return nullptr;
        OdResBufPtr first = copyOf(*chain);
        OdResBuf *last = first.get();
        for (const OdResBuf *link = chain->next(); link; link = link->next())
            last = last->setNext(copyOf(*link));
        return first;
    }

    OdResBufPtr m_chain;
};

} // namespace

OdDbDictionary *Database::getNamedObjectsDictionary()
{
    return isSupplied("OdDbDatabase::getNamedObjectsDictionary") ? this : nullptr;
}

OdDbXrecord *Database::getAt(const OdString &name)
{
    return m_records.value(name.toUpper()).get();
}

OdDbXrecord *Database::setAt(const OdString &name)
{
    std::shared_ptr<OdDbXrecord> &record = m_records[name.toUpper()];
    if (!record)
        record = std::make_shared<Xrecord>();
    return record.get();
}

OdResBufPtr Database::getSysVar(const OdString &name) const
{
    if (name.toUpper() == wipeoutFrame)
        return OdResBuf::newInteger(OdResBuf::kRtShort, m_wipeoutFrame);
    return nullptr;
}

bool Database::setSysVar(const OdString &name, const OdResBuf &value)
{
    const qint64 number = value.getInteger();
    if (name.toUpper() != wipeoutFrame || number < 0 || number > 2)
        return false;
    editor().tell([&](OdEditorReactor &reactor) { reactor.sysVarWillChange(this, name); });
    m_wipeoutFrame = number;
    return true;
}

} // namespace sample

OdRxClass *RText::desc()
{
    return sample::notSupplied<OdRxClass *>("RText::desc");
}
