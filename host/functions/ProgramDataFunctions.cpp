// Data that programs keep in the drawing: (vlax-ldata-put) and the room for extended data.

#include "host/drawing/records/Dictionaries.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Text.h"

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;
using lisp::Arguments;
using lisp::Value;

// How values are written into an extension record: each kind under a group of its own, long texts in pieces.
constexpr int textCode = 1;
constexpr int symbolCode = 2;
constexpr int pieceCode = 3;
constexpr int realCode = 40;
constexpr int integerCode = 90;
constexpr int entityCode = 330;
/// Where a list begins and ends, and what stands before the rest of one that is no proper list.
constexpr int markCode = 70;
constexpr qint64 openMark = 1;
constexpr qint64 closeMark = 2;
constexpr qint64 dotMark = 3;
constexpr qsizetype longestPiece = 250;
constexpr int deepestData = 500;

void writeText(FieldList &fields, int code, QString text)
{
    while (text.size() > longestPiece) {
        // A character of two units stays whole.
        const qsizetype end = text[longestPiece - 1].isHighSurrogate() ? longestPiece - 1 : longestPiece;
        fields.push_back({pieceCode, text.left(end)});
        text.remove(0, end);
    }
    fields.push_back({code, text});
}

/// False for what has no form in a drawing: functions, files, selection sets, what nests beyond reason.
bool writeData(const Document &document, FieldList &fields, const Value &value, int depth = 0)
{
    if (value.isInteger())
        fields.push_back({integerCode, qint64(value.asInteger())});
    else if (value.isReal())
        fields.push_back({realCode, value.asReal()});
    else if (value.isString())
        writeText(fields, textCode, fromUtf8(value.asString()));
    else if (value.isSymbol())
        writeText(fields, symbolCode, fromUtf8(value.asSymbol().name()));
    else if (value.isEntityName() && isValid(recordFrom(document, value.asEntityName())))
        fields.push_back({entityCode, document.drawing().handle(recordFrom(document, value.asEntityName()))});
    else if (!value.isCons() && !value.isNil())
        return false;
    if (!value.isCons() && !value.isNil())
        return true;
    fields.push_back({markCode, openMark});
    const Value *rest = &value;
    for (; rest->isCons(); rest = &rest->cdr())
        if (depth >= deepestData || !writeData(document, fields, rest->car(), depth + 1))
            return false;
    if (rest->isTrue()) {
        fields.push_back({markCode, dotMark});
        if (!writeData(document, fields, *rest, depth + 1))
            return false;
    }
    fields.push_back({markCode, closeMark});
    return true;
}

/// Reads what writeData() wrote; anything else reads as nil, item by item.
class DataReader
{
public:
    DataReader(Arguments &args, const FieldList &fields)
        : m_drawing(documentOf(args).drawing()), m_interpreter(args.interpreter()), m_fields(fields)
    {
    }

    Value read(int depth = 0)
    {
        QString pieces;
        while (m_next < m_fields.size() && m_fields[m_next].code == pieceCode)
            pieces += m_fields[m_next++].text();
        if (m_next >= m_fields.size())
            return {};
        const Field &field = m_fields[m_next++];
        switch (field.code) {
        case textCode:
            return toLisp(pieces + field.text());
        case symbolCode:
            return m_interpreter.symbol((pieces + field.text()).toStdString());
        case realCode:
            return Value::real(field.real());
        case integerCode:
            return Value::integer(static_cast<std::int32_t>(field.integer()));
        case entityCode: {
            const RecordId record = m_drawing.find(field.handle());
            return isValid(record) ? toLisp(record) : Value();
        }
        default:
            return field.code == markCode && field.integer() == openMark && depth < deepestData ? readList(depth)
                                                                                                : Value();
        }
    }

private:
    bool isMark(qint64 mark) const
    {
        return m_next < m_fields.size() && m_fields[m_next].code == markCode && m_fields[m_next].integer() == mark;
    }

    Value readList(int depth)
    {
        std::vector<Value> items;
        Value rest;
        while (m_next < m_fields.size() && !isMark(closeMark)) {
            if (!isMark(dotMark)) {
                items.push_back(read(depth + 1));
                continue;
            }
            ++m_next;
            rest = read(depth + 1);
        }
        ++m_next;
        for (auto item = items.rbegin(); item != items.rend(); ++item)
            rest = Value::cons(*item, rest);
        return rest;
    }

    const drawing::Drawing &m_drawing;
    lisp::Interpreter &m_interpreter;
    const FieldList &m_fields;
    std::size_t m_next = 0;
};

const QString entityDataName = QStringLiteral("LISP_DATA");

/// Where the data of argument 0 are: a dictionary by its name below the root, or the one of an entity. noRecord where
/// there is none and none is made.
RecordId dataDictionary(Arguments &args, bool isMade)
{
    drawing::Drawing &drawing = documentOf(args).drawing();
    drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const bool isOfEntity = !args[0].isString();
    const QString name = isOfEntity ? entityDataName : stringAt(args, 0);
    RecordId parent = drawing::noRecord;
    if (isOfEntity)
        parent = isMade ? dictionaries.ensureExtensionDictionary(recordAt(args, 0))
                        : dictionaries.extensionDictionary(recordAt(args, 0));
    else
        parent = isMade ? dictionaries.ensureRoot() : dictionaries.root();
    if (!isValid(parent))
        return parent;
    return isMade ? dictionaries.ensureDictionary(parent, name) : dictionaries.find(parent, name);
}

// (vlax-ldata-put place key data) -> data, which the drawing keeps under the key. The place is the name of a dictionary
// or an entity. Data of which a drawing cannot hold a part: bad argument value. nil in drawings older than R13.
Value ldataPut(Arguments &args)
{
    FieldList fields;
    if (!writeData(documentOf(args), fields, args[2]))
        args.badValue(2, "data");
    const QString key = stringAt(args, 1);
    const RecordId dictionary = dataDictionary(args, true);
    if (!isValid(dictionary) || key.isEmpty())
        return {};
    const RecordId record = documentOf(args).drawing().dictionaries().setXrecord(dictionary, key, fields);
    return isValid(record) ? args[2] : Value();
}

// (vlax-ldata-get place key [otherwise]) -> the data, otherwise where there are none.
Value ldataGet(Arguments &args)
{
    const std::optional<FieldList> fields =
        documentOf(args).drawing().dictionaries().xrecord(dataDictionary(args, false), stringAt(args, 1));
    return fields ? DataReader(args, *fields).read() : args[2];
}

// (vlax-ldata-delete place key) -> T when there were data.
Value ldataDelete(Arguments &args)
{
    const QString key = stringAt(args, 1);
    return args.boolean(documentOf(args).drawing().dictionaries().remove(dataDictionary(args, false), key));
}

// (vlax-ldata-list place) -> a list of (key . data).
Value ldataList(Arguments &args)
{
    const drawing::Dictionaries &dictionaries = documentOf(args).drawing().dictionaries();
    lisp::ListBuilder pairs;
    for (const drawing::Dictionaries::Entry &entry : dictionaries.entries(dataDictionary(args, false))) {
        if (!isValid(entry.record) || !documentOf(args).drawing().isType(entry.record, "XRECORD"))
            continue;
        const FieldList fields = dictionaries.xrecordData(entry.record);
        pairs.append(Value::cons(toLisp(entry.name), DataReader(args, fields).read()));
    }
    return pairs.take();
}

// (vlax-ldata-test data) -> T for data that a drawing can hold.
Value ldataTest(Arguments &args)
{
    FieldList fields;
    return args.boolean(writeData(documentOf(args), fields, args[0]));
}

/// What an entity may have of extended data, in bytes.
constexpr std::int32_t roomForData = 16383;

/// The size of one item as the format counts it: its group, and what it holds.
std::int32_t itemSize(const Value &code, const Value &value)
{
    constexpr std::int32_t group = 1;
    if (!code.isInteger())
        return group;
    switch (code.asInteger()) {
    case 1010:
    case 1011:
    case 1012:
    case 1013:
        return group + 24;
    case 1040:
    case 1041:
    case 1042:
    case 1005:
        return group + 8;
    case 1071:
        return group + 4;
    case 1070:
    case 1001:
        return group + 2;
    case 1002:
        return group + 1;
    default:
        return group + 3 + (value.isString() ? static_cast<std::int32_t>(value.asString().size()) : 0);
    }
}

std::int32_t dataSize(const Value &list)
{
    std::int32_t size = 0;
    for (const Value &item : lisp::ListItems(list)) {
        // An application's items stand in a list with its name in front.
        if (item.isCons() && item.car().isString())
            size += 3 + dataSize(item.cdr());
        else if (item.isCons() && item.car().isInteger() && item.car().asInteger() == -3)
            size += dataSize(item.cdr());
        else if (item.isCons())
            size += itemSize(item.car(), item.cdr());
    }
    return size;
}

// (xdsize list) -> how many bytes extended data take, given as (entget) has them behind -3.
Value xdsize(Arguments &args)
{
    return Value::integer(dataSize(args.list(0)));
}

/// What the record's extended data take.
std::int32_t usedBy(const drawing::TagList &tags)
{
    std::int32_t size = 0;
    for (const drawing::Tag &tag : tags)
        if (tag.code >= 1000 && tag.code < 1072)
            size += itemSize(Value::integer(tag.code), Value::string(tag.value.toByteArray().toStdString()));
    return size;
}

// (xdroom entity) -> how many more bytes of extended data the entity may have.
Value xdroom(Arguments &args)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    const RecordId record = recordAt(args, 0);
    if (!drawing.isAlive(record))
        return {};
    return Value::integer(std::max(0, roomForData - usedBy(drawing.tags(record))));
}

} // namespace

void addProgramDataFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"vlax-ldata-put", ldataPut, Arity::between(3, 4), "place key data [private]",
         "keeps data in the drawing, in a dictionary or with an entity"},
        {"vlax-ldata-get", ldataGet, Arity::between(2, 4), "place key [otherwise [private]]", "what is kept so"},
        {"vlax-ldata-delete", ldataDelete, Arity::between(2, 3), "place key [private]", "takes it away"},
        {"vlax-ldata-list", ldataList, Arity::between(1, 2), "place [private]", "all of it, as (key . data)"},
        {"vlax-ldata-test", ldataTest, Arity::exactly(1), "data", "T for data that a drawing can hold"},
        {"xdsize", xdsize, Arity::exactly(1), "list", "how many bytes extended data take"},
        {"xdroom", xdroom, Arity::exactly(1), "entity", "how many more bytes of extended data an entity may have"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
