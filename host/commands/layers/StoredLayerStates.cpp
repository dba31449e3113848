#include "host/commands/layers/StoredLayerStates.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/ExtendedData.h"
#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Drawing;
using drawing::Field;
using drawing::FieldList;
using drawing::Handle;
using drawing::isValid;
using drawing::RecordId;
using drawing::TableKind;

namespace {

const QString transparencyApplication = u"AcCmTransparency"_s;
const QString fileMark = u"LAYERSTATEDICTIONARY"_s;

// Groups of a state: its parts, then those of each layer behind the layer's name.
constexpr int partsCode = 91;
constexpr int nameCode = 8;
constexpr int flagsCode = 90;
constexpr int plainColourCode = 62;
constexpr int weightCode = 370;
constexpr int linetypeCode = 331; ///< in drawings; by name in files
constexpr int linetypeNameCode = 6;
constexpr int transparencyCode = 440;
constexpr int packedColourCode = 92;

// How the flags say what the parts mean.
constexpr qint64 isOff = 1;
constexpr qint64 isFrozen = 2;
constexpr qint64 isLocked = 4;
constexpr qint64 isUnplotted = 8;
constexpr qint64 isFrozenInNew = 16;

/// In front of a colour that is exact, or of a number.
constexpr qint64 exactMark = 0xC2;
constexpr qint64 numberMark = 0xC3;

RecordId statesOf(const Drawing &drawing)
{
    const RecordId table = drawing.tables().table(TableKind::Layer);
    const RecordId extension = isValid(table) ? drawing.dictionaries().extensionDictionary(table) : drawing::noRecord;
    return isValid(extension) ? drawing.dictionaries().find(extension, u"ACAD_LAYERSTATES") : drawing::noRecord;
}

RecordId ensureStates(Drawing &drawing)
{
    const RecordId extension =
        drawing.dictionaries().ensureExtensionDictionary(drawing.tables().ensureTable(TableKind::Layer));
    return isValid(extension) ? drawing.dictionaries().ensureDictionary(extension, u"ACAD_LAYERSTATES"_s)
                              : drawing::noRecord;
}

std::optional<FieldList> stateData(const Drawing &drawing, const QString &name)
{
    const RecordId states = statesOf(drawing);
    return isValid(states) ? drawing.dictionaries().xrecord(states, name) : std::nullopt;
}

qint64 transparencyOf(const FieldList &layer)
{
    const auto application = std::ranges::find_if(layer, [](const Field &field) {
        return field.code == drawing::applicationCode && field.text() == transparencyApplication;
    });
    const bool hasValue = application != layer.end() && application + 1 != layer.end() && application[1].code == 1071;
    return hasValue ? application[1].integer() : 0;
}

qint64 valueOf(const FieldList &fields, int code, qint64 otherwise)
{
    const Field *field = drawing::findField(fields, code);
    return field ? field->integer() : otherwise;
}

/// A colour as one number of 32 bits.
qint64 packedColour(const FieldList &layer)
{
    const Field *exact = drawing::findField(layer, 420);
    const qint64 packed = exact ? exactMark << 24 | (exact->integer() & 0xFFFFFF)
                                : numberMark << 24 | (std::abs(valueOf(layer, plainColourCode, 7)) & 0xFF);
    return qint32(quint32(packed));
}

void appendLayer(FieldList &state, const Drawing &drawing, RecordId entry)
{
    const FieldList layer = drawing.fields(entry);
    const qint64 bits = valueOf(layer, 70, 0);
    const qint64 colour = valueOf(layer, plainColourCode, 7);
    const Field *linetype = drawing::findField(layer, linetypeNameCode);
    const RecordId line = linetype ? drawing.tables().find(TableKind::Linetype, linetype->text()) : drawing::noRecord;
    const qint64 flags = (colour < 0 ? isOff : 0) | (bits & 1 ? isFrozen : 0) | (bits & 4 ? isLocked : 0) |
                         (valueOf(layer, 290, 1) == 0 ? isUnplotted : 0) | (bits & 2 ? isFrozenInNew : 0);
    state.insert(state.end(), {{nameCode, drawing.tables().name(entry)},
                               {flagsCode, flags},
                               {plainColourCode, std::abs(colour)},
                               {weightCode, valueOf(layer, weightCode, -3)}});
    if (isValid(line))
        state.push_back({linetypeCode, drawing.handle(line)});
    state.insert(state.end(), {{transparencyCode, transparencyOf(layer)}, {packedColourCode, packedColour(layer)}});
}

/// The groups of each layer in a state.
std::vector<FieldList> layersInState(const FieldList &state)
{
    std::vector<FieldList> layers;
    for (const Field &field : state) {
        if (field.code == nameCode)
            layers.emplace_back();
        if (!layers.empty())
            layers.back().push_back(field);
    }
    return layers;
}

void setBit(qint64 &bits, qint64 bit, bool isOn)
{
    bits = isOn ? bits | bit : bits & ~bit;
}

void restoreColour(FieldList &layer, const FieldList &stored)
{
    const bool isLayerOff = valueOf(layer, plainColourCode, 7) < 0;
    const qint64 colour = valueOf(stored, plainColourCode, 7);
    drawing::setField(layer, plainColourCode, isLayerOff ? -colour : colour);
    std::erase_if(layer, [](const Field &field) { return field.code == 420 || field.code == 430; });
    const auto packed = quint32(valueOf(stored, packedColourCode, 0));
    if (packed >> 24 == exactMark)
        drawing::setField(layer, 420, qint64(packed & 0xFFFFFF));
}

void restoreFlags(FieldList &layer, const FieldList &stored, qint64 parts, bool isCurrent)
{
    const qint64 flags = valueOf(stored, flagsCode, 0);
    qint64 bits = valueOf(layer, 70, 0);
    if (parts & StateFrozen)
        setBit(bits, 1, (flags & isFrozen) != 0 && !isCurrent);
    if (parts & StateNewViewports)
        setBit(bits, 2, (flags & isFrozenInNew) != 0);
    if (parts & StateLock)
        setBit(bits, 4, (flags & isLocked) != 0);
    drawing::setField(layer, 70, bits);
    if (parts & StateOn) {
        const qint64 colour = std::abs(valueOf(layer, plainColourCode, 7));
        drawing::setField(layer, plainColourCode, (flags & isOff) ? -colour : colour);
    }
    if (!(parts & StatePlot))
        return;
    if (flags & isUnplotted)
        drawing::setField(layer, 290, qint64(0));
    else
        std::erase_if(layer, [](const Field &field) { return field.code == 290; });
}

void restoreLayer(Drawing &drawing, RecordId entry, const FieldList &stored, qint64 parts, bool isCurrent)
{
    FieldList layer = drawing.fields(entry);
    restoreFlags(layer, stored, parts, isCurrent);
    if (parts & StateColour)
        restoreColour(layer, stored);
    const Field *linetype = drawing::findField(stored, linetypeCode);
    const RecordId line = linetype ? drawing.find(linetype->handle()) : drawing::noRecord;
    if ((parts & StateLinetype) && isValid(line) && drawing.isAlive(line) && drawing.isType(line, "LTYPE"))
        drawing::setField(layer, linetypeNameCode, drawing.tables().name(line));
    const qint64 weight = valueOf(stored, weightCode, -3);
    if ((parts & StateLineweight) && weight != valueOf(layer, weightCode, -3))
        drawing::setField(layer, weightCode, weight);
    const qint64 transparency = valueOf(stored, transparencyCode, 0);
    if ((parts & StateTransparency) && transparency != transparencyOf(layer))
        drawing::setExtendedData(layer, transparencyApplication,
                                 transparency == 0 ? FieldList{} : FieldList{{1071, transparency}});
    drawing.tables().modify(entry, layer);
}

/// Handles become names in a file, names handles in a drawing.
FieldList withLinetypes(const Drawing &drawing, FieldList state, int from)
{
    for (Field &field : state) {
        if (field.code != from)
            continue;
        const bool isName = from == linetypeNameCode;
        const RecordId line =
            isName ? drawing.tables().find(TableKind::Linetype, field.text()) : drawing.find(field.handle());
        if (isName)
            field = {linetypeCode, isValid(line) ? drawing.handle(line) : Handle{}};
        else
            field = {linetypeNameCode, isValid(line) ? drawing.tables().name(line) : u"Continuous"_s};
    }
    return state;
}

/// Pairs of lines: a group code and its value.
std::optional<FieldList> fieldsOfText(const QByteArray &text)
{
    const QStringList lines = QString::fromUtf8(text).split(u'\n');
    FieldList fields;
    for (qsizetype line = 0; line + 1 < lines.size(); line += 2) {
        bool isNumber = false;
        const int code = lines[line].trimmed().toInt(&isNumber);
        const QString value = lines[line + 1].trimmed();
        if (!isNumber || code < 0 || code > 1071)
            return std::nullopt;
        const bool isText = drawing::tagType(code) == drawing::TagType::Text;
        fields.push_back({code, isText ? drawing::FieldValue(value) : drawing::FieldValue(value.toLongLong())});
    }
    return fields;
}

} // namespace

QStringList layerStateNames(const Drawing &drawing)
{
    QStringList names;
    if (const RecordId states = statesOf(drawing); isValid(states))
        for (const drawing::Dictionaries::Entry &entry : drawing.dictionaries().entries(states))
            names.append(entry.name);
    return names;
}

bool storeLayerState(Drawing &drawing, const QString &name, qint64 parts)
{
    const drawing::JournalGroup group(drawing.journal(), {});
    const RecordId states = ensureStates(drawing);
    if (!isValid(states))
        return false;
    FieldList data = {
        {partsCode, parts}, {301, QString()}, {290, qint64(1)}, {302, drawing.header().text(u"$CLAYER", u"0"_s)}};
    for (const RecordId entry : drawing.tables().entries(TableKind::Layer))
        appendLayer(data, drawing, entry);
    return isValid(drawing.dictionaries().setXrecord(states, name, data));
}

std::optional<qint64> layerStateParts(const Drawing &drawing, const QString &name)
{
    const std::optional<FieldList> data = stateData(drawing, name);
    return data ? std::optional(valueOf(*data, partsCode, WholeState)) : std::nullopt;
}

void setLayerStateParts(Drawing &drawing, const QString &name, qint64 parts)
{
    std::optional<FieldList> data = stateData(drawing, name);
    if (!data)
        return;
    drawing::setField(*data, partsCode, parts);
    drawing.dictionaries().setXrecord(statesOf(drawing), name, *data);
}

void restoreLayerState(Drawing &drawing, const QString &name)
{
    const std::optional<FieldList> data = stateData(drawing, name);
    if (!data)
        return;
    const drawing::JournalGroup group(drawing.journal(), {});
    const qint64 parts = valueOf(*data, partsCode, WholeState);
    const QString current = drawing.header().text(u"$CLAYER", u"0"_s);
    for (const FieldList &stored : layersInState(*data)) {
        const QString layer = stored.front().text();
        if (const RecordId entry = drawing.tables().find(TableKind::Layer, layer); isValid(entry))
            restoreLayer(drawing, entry, stored, parts, layer.compare(current, Qt::CaseInsensitive) == 0);
    }
}

bool renameLayerState(Drawing &drawing, const QString &name, const QString &newName)
{
    const RecordId states = statesOf(drawing);
    return isValid(states) && !newName.isEmpty() && drawing.dictionaries().rename(states, name, newName);
}

bool removeLayerState(Drawing &drawing, const QString &name)
{
    const RecordId states = statesOf(drawing);
    return isValid(states) && drawing.dictionaries().remove(states, name);
}

QByteArray layerStateText(const Drawing &drawing, const QString &name)
{
    QString text = u"0\n%1\n0\nLAYERSTATE\n1\n%2\n"_s.arg(fileMark, name);
    for (const Field &field : withLinetypes(drawing, stateData(drawing, name).value_or(FieldList{}), linetypeCode)) {
        const bool isText = std::holds_alternative<QString>(field.value);
        text +=
            u"%1\n%2\n"_s.arg(QString::number(field.code), isText ? field.text() : QString::number(field.integer()));
    }
    return text.toUtf8();
}

QString takeLayerStateText(Drawing &drawing, const QByteArray &text)
{
    std::optional<FieldList> fields = fieldsOfText(text);
    const bool isState = fields && fields->size() > 3 && fields->front().text() == fileMark && (*fields)[2].code == 1;
    const QString name = isState ? (*fields)[2].text() : QString();
    if (name.isEmpty() || stateData(drawing, name))
        return {};
    fields->erase(fields->begin(), fields->begin() + 3);
    const RecordId states = ensureStates(drawing);
    const FieldList data = withLinetypes(drawing, std::move(*fields), linetypeNameCode);
    return isValid(states) && isValid(drawing.dictionaries().setXrecord(states, name, data)) ? name : QString();
}

} // namespace host::kernel
