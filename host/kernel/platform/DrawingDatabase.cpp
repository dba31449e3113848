#include "host/kernel/platform/DrawingDatabase.h"

#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/ObjectIds.h"
#include "host/kernel/lisp/ResBufConversion.h"
#include "host/kernel/platform/RecordChain.h"
#include "host/kernel/platform/RemoteText.h"
#include "host/kernel/variables/SystemVariables.h"
#include "platform/rx/OdError.h"

#include <limits>

namespace host::kernel {

namespace {

using drawing::applicationCode;
using drawing::FieldList;
using drawing::RecordId;
using drawing::xdataCode;

struct VariableLink
{
    OdResBufPtr operator()(qint32 number) const
    {
        using Short = std::numeric_limits<qint16>;
        const bool isShort = number >= Short::min() && number <= Short::max();
        return OdResBuf::newInteger(isShort ? OdResBuf::kRtShort : OdResBuf::kRtLong, number);
    }
    OdResBufPtr operator()(double number) const { return OdResBuf::newReal(OdResBuf::kRtReal, number); }
    OdResBufPtr operator()(const QString &text) const { return OdResBuf::newString(OdResBuf::kRtString, text); }
    OdResBufPtr operator()(const drawing::Vec2 &point) const
    {
        return OdResBuf::newPoint(OdResBuf::kRtPoint, {point.x, point.y, 0.0});
    }
    OdResBufPtr operator()(const drawing::Vec3 &point) const
    {
        return OdResBuf::newPoint(OdResBuf::kRtPoint3d, {point.x, point.y, point.z});
    }
};

/// What a system variable can be; nothing for links of other types.
std::optional<VariableValue> toVariable(const OdResBuf &link)
{
    const OdGePoint3d point = link.getPoint3d();
    switch (link.restype()) {
    case OdResBuf::kRtShort:
    case OdResBuf::kRtLong:
        return static_cast<qint32>(link.getInteger());
    case OdResBuf::kRtReal:
    case OdResBuf::kRtAngle:
        return link.getDouble();
    case OdResBuf::kRtString:
        return link.getString();
    case OdResBuf::kRtPoint:
        return drawing::Vec2{point.x, point.y};
    case OdResBuf::kRtPoint3d:
        return drawing::Vec3{point.x, point.y, point.z};
    default:
        return {};
    }
}

/// An entity list without its nesting: each group code and its value.
std::vector<lisp::Value> codesAndValues(const lisp::Value &list)
{
    std::vector<lisp::Value> flat;
    const auto append = [&flat](const lisp::Value &group) {
        flat.push_back(group.car());
        flat.push_back(group.cdr());
    };
    for (const lisp::Value &item : lisp::ListItems(list)) {
        if (item.car().asInteger() != xdataCode) {
            append(item);
            continue;
        }
        for (const lisp::Value &application : lisp::ListItems(item.cdr())) {
            append(lisp::Value::cons(lisp::Value::integer(applicationCode), application.car()));
            for (const lisp::Value &group : lisp::ListItems(application.cdr()))
                append(group);
        }
    }
    return flat;
}

/// An extension record by its name in a dictionary: it stays right while the record is replaced or undone.
class Xrecord final : public OdDbXrecord
{
public:
    Xrecord(Document &document, const QString &name) : m_document(document), m_name(name) {}

    OdResBufPtr rbChain() const override
    {
        const drawing::Dictionaries &dictionaries = m_document.drawing().dictionaries();
        const std::optional<FieldList> data = dictionaries.xrecord(dictionaries.root(), m_name);
        return chainFromFields(data.value_or(FieldList()));
    }

    bool setFromRbChain(const OdResBuf *chain) override
    {
        const FieldList data = fieldsFromChain(chain);
        bool isSet = false;
        m_document.runAs(QStringLiteral("XRECORD"), [&] {
            drawing::Dictionaries &dictionaries = m_document.drawing().dictionaries();
            isSet = isValid(dictionaries.setXrecord(dictionaries.ensureRoot(), m_name, data));
        });
        return isSet;
    }

private:
    Document &m_document;
    QString m_name;
};

} // namespace

drawing::Drawing *HostDatabase::drawingOf(OdDbDatabase *database)
{
    auto *own = dynamic_cast<HostDatabase *>(database);
    return own ? &own->drawing() : nullptr;
}

class DrawingDatabase::Dictionary final : public OdDbDictionary
{
public:
    explicit Dictionary(Document &document) : m_document(document) {}

    OdDbXrecord *getAt(const OdString &name) override
    {
        const drawing::Dictionaries &dictionaries = m_document.drawing().dictionaries();
        return dictionaries.xrecord(dictionaries.root(), name) ? record(name) : nullptr;
    }

    OdDbXrecord *setAt(const OdString &name) override
    {
        drawing::Dictionaries &dictionaries = m_document.drawing().dictionaries();
        if (dictionaries.xrecord(dictionaries.root(), name))
            return record(name);
        return record(name)->setFromRbChain(nullptr) ? record(name) : nullptr;
    }

private:
    Xrecord *record(const QString &name)
    {
        std::unique_ptr<Xrecord> &entry = m_records[name.toUpper()];
        if (!entry)
            entry = std::make_unique<Xrecord>(m_document, name);
        return entry.get();
    }

    Document &m_document;
    std::map<QString, std::unique_ptr<Xrecord>> m_records;
};

/// The space that is current when an entity comes.
class DrawingDatabase::ActiveSpace final : public OdDbBlockTableRecord
{
public:
    explicit ActiveSpace(Document &document) : m_document(document) {}

    OdDbObjectId appendOdDbEntity(OdDbEntity &entity) override
    {
        const auto *own = dynamic_cast<const NewEntity *>(&entity);
        if (!own)
            throw OdError(QStringLiteral("An entity of another host cannot be in the drawing."));
        drawing::Drawing &drawing = m_document.drawing();
        const drawing::CreateResult made = createOnCurrent(drawing, own->fields());
        if (!made)
            throw OdError(made.error);
        return OdDbObjectId(static_cast<quint64>(made.record));
    }

private:
    Document &m_document;
};

DrawingDatabase::DrawingDatabase(Document &document)
    : m_document(document), m_namedObjects(std::make_unique<Dictionary>(document)),
      m_activeSpace(std::make_unique<ActiveSpace>(document))
{
}

DrawingDatabase::~DrawingDatabase() = default;

OdDbBlockTableRecord *FileDatabase::openActiveLayoutBTR()
{
    throw OdError(QStringLiteral("A drawing that is only looked at cannot be changed."));
}

drawing::Drawing &DrawingDatabase::drawing()
{
    return m_document.drawing();
}

OdString DrawingDatabase::getFilename() const
{
    return m_document.path();
}

OdDbDictionary *DrawingDatabase::getNamedObjectsDictionary()
{
    return drawing::hasMarkers(m_document.drawing()) ? m_namedObjects.get() : nullptr;
}

OdResBufPtr DrawingDatabase::getSysVar(const OdString &name) const
{
    const std::optional<VariableValue> value = m_document.variables().get(name);
    return value ? std::visit(VariableLink(), *value) : nullptr;
}

bool DrawingDatabase::setSysVar(const OdString &name, const OdResBuf &value)
{
    const std::optional<VariableValue> wanted = toVariable(value);
    if (!wanted)
        return false;
    SetOutcome outcome = SetOutcome::Unknown;
    m_document.runAs(QStringLiteral("SETVAR"), [&] { outcome = m_document.variables().set(name, *wanted); });
    return outcome == SetOutcome::Done;
}

void DrawingDatabase::startTransaction()
{
    m_document.undoSteps().beginRun(QStringLiteral("TRANSACTION"));
}

void DrawingDatabase::endTransaction()
{
    m_document.undoSteps().endRun();
}

OdDbBlockTableRecord *DrawingDatabase::openActiveLayoutBTR()
{
    return m_activeSpace.get();
}

void DrawingDatabase::flushGraphics()
{
    emit m_document.viewChanged();
}

OdResBufPtr DrawingDatabase::entityData(const OdDbObjectId &object) const
{
    const RecordId record = recordFrom(m_document, object);
    if (!m_document.drawing().isAlive(record))
        return nullptr;
    return chainFromValues(codesAndValues(entityList(m_document, record, {QStringLiteral("*")})));
}

OdDbObjectId DrawingDatabase::nextEntity(const OdDbObjectId &entity) const
{
    const RecordId record = recordFrom(m_document, entity);
    return isValid(record) ? objectId(entityBehind(m_document.drawing(), record)) : OdDbObjectId();
}

int DrawingDatabase::moveEntities(const OdDbObjectIdArray &entities, const OdGePoint3d &by)
{
    int left = 0;
    m_document.runAs(QStringLiteral("MOVE"), [&] {
        drawing::Drawing &drawing = m_document.drawing();
        const QSet<QString> locked = lockedLayers(drawing);
        const drawing::Matrix shift = drawing::Matrix::translation({by.x, by.y, by.z});
        for (const RecordId record : recordsFrom(m_document, entities)) {
            const bool canMove = drawing.isAlive(record) && !isOnLayerOf(locked, drawing, record);
            left += canMove && drawing::transformEntity(drawing, record, shift) ? 0 : 1;
        }
    });
    return left;
}

} // namespace host::kernel
