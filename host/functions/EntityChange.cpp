#include "host/functions/EntityChange.h"

#include "host/drawing/records/EntityRules.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/ParagraphSize.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <cmath>

namespace host::kernel {

namespace {

using drawing::applicationCode;
using drawing::embeddedObjectCode;
using drawing::Field;
using drawing::FieldList;
using drawing::groupCode;
using drawing::ownerCode;
using drawing::RecordId;
using drawing::ShownField;
using drawing::subclassCode;
using drawing::Vec2;
using drawing::Vec3;
using drawing::xdataCode;
using lisp::Value;

/// Where a group belongs: groups of an embedded object are others than the record's own with the same code.
struct Key
{
    int code = 0;
    bool isEmbedded = false;

    bool operator==(const Key &) const = default;
    friend size_t qHash(const Key &key, size_t seed = 0) { return ::qHash(key.code * 2 + key.isEmbedded, seed); }
};

/// One group of the list.
struct Given
{
    Key key;
    Field field;
    int shown = -1;      ///< which of the shown fields it stands for; -1 for none
    bool isSame = false; ///< it is as it was shown
};

/// Gives every field of a list its key, one after the other.
class KeyMaker
{
public:
    Key take(int code)
    {
        m_isEmbedded = m_isEmbedded || code == embeddedObjectCode;
        return {code, m_isEmbedded};
    }

private:
    bool m_isEmbedded = false;
};

bool isSameValue(const Field &present, const Field &given)
{
    const auto isNear = [](double a, double b) { return a == b || std::abs(a - b) <= 1e-13 * std::abs(a); };
    if (isAngleCode(present.code))
        return isNear(present.real(), given.real());
    return present.value == given.value;
}

/// The given value in the form that the file has: an equal value in its spelling, a flat point flat.
Field adopted(const Field &present, const Field &given)
{
    Field field = given;
    const auto *point = std::get_if<Vec3>(&given.value);
    if (point && point->z == 0.0 && std::holds_alternative<Vec2>(present.value))
        field.value = point->xy();
    return isSameValue(present, field) ? present : field;
}

/// Types whose groups mean something by their order: a code that is left out cannot be put back from the old list.
bool isOrdered(const QString &type)
{
    static const QStringList types = {QStringLiteral("LWPOLYLINE"), QStringLiteral("SPLINE"),  QStringLiteral("HATCH"),
                                      QStringLiteral("MLINE"),      QStringLiteral("LEADER"),  QStringLiteral("LTYPE"),
                                      QStringLiteral("DICTIONARY"), QStringLiteral("XRECORD"), QStringLiteral("GROUP"),
                                      QStringLiteral("MULTILEADER")};
    return types.contains(type);
}

/// A part of a long text; there may be any number.
constexpr int chunkCode = 3;

/// Types that have each of their groups once, the chunks of a text aside.
bool isPlain(const QString &type)
{
    static const QStringList types = {
        QStringLiteral("LINE"),   QStringLiteral("CIRCLE"), QStringLiteral("ARC"),    QStringLiteral("ELLIPSE"),
        QStringLiteral("POINT"),  QStringLiteral("TEXT"),   QStringLiteral("ATTRIB"), QStringLiteral("ATTDEF"),
        QStringLiteral("MTEXT"),  QStringLiteral("INSERT"), QStringLiteral("VERTEX"), QStringLiteral("DIMENSION"),
        QStringLiteral("3DFACE"), QStringLiteral("SOLID"),  QStringLiteral("LAYER"),  QStringLiteral("STYLE")};
    return types.contains(type);
}

FieldList::iterator findMarker(FieldList &fields)
{
    return std::find_if(fields.begin(), fields.end(), [](const Field &field) { return field.code == subclassCode; });
}

class Change
{
public:
    Change(const Document &document, RecordId record)
        : m_document(document), m_record(record), m_present(document.drawing().fields(record)),
          m_shown(shownFields(document, record, m_present)),
          m_type(QString::fromLatin1(document.drawing().typeName(record)))
    {
        KeyMaker keys;
        for (size_t i = 0; i < m_shown.size(); ++i)
            m_shownByKey[keys.take(m_shown[i].field.code)].push_back(static_cast<int>(i));
    }

    FieldList apply(const Value &list)
    {
        read(list);
        FieldList result = hasSameShape() ? substituted() : rebuilt();
        if (m_type == QStringLiteral("MTEXT"))
            adjustParagraph(result);
        if (m_type == QStringLiteral("LWPOLYLINE"))
            adjustWidths(result);
        appendXdata(result);
        return result;
    }

private:
    void read(const Value &list)
    {
        const AngleForm angles = angleForm(m_document.drawing(), m_record);
        KeyMaker keys;
        QHash<Key, int> left = occurrences(list);
        for (const Value &item : lisp::ListItems(list)) {
            const int code = codeOf(item);
            if (code == xdataCode) {
                for (const Value &application : lisp::ListItems(item.cdr()))
                    m_applications.push_back(application);
            } else if (code >= 0) {
                const Key key = keys.take(code);
                if (--left[key] == 0 || !isSingle(key))
                    readGroup(item, key, angles);
            }
        }
    }

    static int codeOf(const Value &item) { return item.car().isInteger() ? item.car().asInteger() : 0; }

    static QHash<Key, int> occurrences(const Value &list)
    {
        QHash<Key, int> counts;
        KeyMaker keys;
        for (const Value &item : lisp::ListItems(list))
            if (codeOf(item) >= 0)
                ++counts[keys.take(codeOf(item))];
        return counts;
    }

    /// Whether a record has one such group: programs put a new one behind the old, and the last counts.
    bool isSingle(const Key &key) const
    {
        constexpr int lastOwnCode = 79;
        const size_t shown = m_shownByKey.value(key).size();
        if (key.isEmbedded || shown > 1)
            return false; // tables and their styles have a colour for each of their cells
        const bool isOwn = key.code > 0 && key.code <= lastOwnCode && key.code != chunkCode && isPlain(m_type);
        const bool isEntity = m_document.drawing().kind(m_record) == drawing::RecordKind::Entity;
        return (isEntity && drawing::isCommonCode(key.code)) || (isOwn && shown == 1);
    }

    void readGroup(const Value &item, const Key &key, AngleForm angles)
    {
        Given given{.key = key, .field = {}};
        const std::vector<int> &candidates = m_shownByKey[key];
        const auto number = static_cast<size_t>(m_counts[key]++);
        if (number < candidates.size()) {
            given.shown = candidates[number];
            const Field &field = m_shown[static_cast<size_t>(given.shown)].field;
            // Sizes of paragraphs are measured, not taken.
            given.isSame = isMeasured(key) || lisp::isEqual(toListItem(m_document, field, angles), item);
            given.field = field;
        }
        if (!given.isSame)
            given.field = fromListItem(m_document, item, angles);
        if (given.shown >= 0 || !isMeasured(key))
            m_given.push_back(std::move(given));
    }

    bool isMeasured(const Key &key) const
    {
        return m_type == QStringLiteral("MTEXT") && !key.isEmbedded && isParagraphSize(key.code);
    }

    /// Whether every group of the list has its place among those shown, but for groups of codes that none had.
    bool hasSameShape() const
    {
        for (auto count = m_counts.begin(); count != m_counts.end(); ++count) {
            const int before = static_cast<int>(m_shownByKey.value(count.key()).size());
            if (count.value() != before && (before != 0 || count.key().code == groupCode || count.key().isEmbedded))
                return false;
        }
        return true;
    }

    const Field *presentOf(const Given &given) const
    {
        const int origin = given.shown < 0 ? ShownField::implied : m_shown[static_cast<size_t>(given.shown)].origin;
        return origin == ShownField::implied ? nullptr : &m_present[static_cast<size_t>(origin)];
    }

    /// The group as it is to be written.
    Field written(const Given &given) const
    {
        const Field *present = presentOf(given);
        if (!present)
            return given.field;
        return given.isSame ? *present : adopted(*present, given.field);
    }

    bool isUnchangedImplied(const Given &given) const { return given.isSame && !presentOf(given); }

    /// The record's fields in their places, with other values where the list has such.
    FieldList substituted()
    {
        FieldList body(m_present.begin(), std::ranges::find(m_present, applicationCode, &Field::code));
        std::vector<FieldList> behind(body.size());
        FieldList added;
        for (const Given &given : m_given) {
            if (const Field *present = presentOf(given))
                body[static_cast<size_t>(present - m_present.data())] = written(given);
            else if (given.shown < 0)
                added.push_back(given.field);
            else if (!given.isSame)
                behind[static_cast<size_t>(placeOf(given.shown))].push_back(given.field);
        }
        FieldList result;
        for (size_t i = 0; i < body.size(); ++i) {
            result.push_back(body[i]);
            result.insert(result.end(), behind[i].begin(), behind[i].end());
        }
        for (const Field &field : added)
            add(result, field);
        return result;
    }

    /// The field of the record that something implied is shown behind.
    int placeOf(int shown) const
    {
        while (m_shown[static_cast<size_t>(shown)].origin == ShownField::implied)
            --shown;
        return m_shown[static_cast<size_t>(shown)].origin;
    }

    /// Puts a group in that the record did not have: what all entities have behind its like, others behind the own.
    void add(FieldList &fields, const Field &field) const
    {
        auto place = drawing::ownEnd(fields);
        if (isEntityKind(m_document.drawing().kind(m_record)) && drawing::isCommonCode(field.code)) {
            const auto marker = std::find_if(fields.begin(), place, [](const Field &each) {
                return each.code == subclassCode && each.text() == QStringLiteral("AcDbEntity");
            });
            if (marker != place)
                place = std::find_if_not(marker + 1, place,
                                         [](const Field &each) { return drawing::isCommonCode(each.code); });
        }
        fields.insert(place, field);
    }

    /// The groups of the list in its order, with those that it leaves out.
    FieldList rebuilt()
    {
        FieldList result;
        for (const Given &given : m_given)
            if (!isUnchangedImplied(given) && !isMeasured(given.key))
                result.push_back(written(given));
        restoreHead(result);
        KeyMaker keys;
        for (const Field &field : m_present) {
            if (field.code == applicationCode)
                break;
            const Key key = keys.take(field.code);
            const bool isProperty = field.code < 10 || (field.code >= 48 && field.code <= 67 && field.code != 50);
            const bool isMissing = !m_counts.contains(key) || isMeasured(key);
            if (isMissing && (isProperty || !isOrdered(m_type)))
                result.insert(key.isEmbedded ? result.end() : drawing::ownEnd(result), field);
        }
        return result;
    }

    /// Programs see the owner in front of handle and {...} groups; it stands behind them.
    void restoreHead(FieldList &fields)
    {
        const auto end = findMarker(fields);
        drawing::BraceDepth braces;
        const auto owner = std::find_if(fields.begin(), end, [&](const Field &field) {
            return !braces.isInside(field) && field.code == ownerCode;
        });
        if (end != fields.end() && owner != end)
            std::rotate(owner, owner + 1, end);
    }

    /// The direction that a program changed takes the place of the other way to say it, and an older size goes.
    void adjustParagraph(FieldList &fields) const
    {
        QSet<int> changed;
        for (const Given &given : m_given)
            if (!given.isSame && !given.key.isEmbedded)
                changed.insert(given.key.code);
        const auto remove = [&fields](int code) {
            if (const Field *field = drawing::findField(fields, code))
                fields.erase(fields.begin() + (field - fields.data()));
        };
        if (changed.contains(11) != changed.contains(50))
            remove(changed.contains(11) ? 50 : 11);
        if (std::ranges::any_of(changed, shapesParagraph)) {
            remove(42);
            remove(43);
        }
    }

    /// A changed width of the whole takes the place of those of the vertices, unless the program changed these as well.
    void adjustWidths(FieldList &fields) const
    {
        const auto isWidth = [](const Field &field) { return field.code == 40 || field.code == 41; };
        bool isWholeChanged = false;
        for (const Given &given : m_given) {
            if (isWidth(given.field) && !given.isSame)
                return;
            isWholeChanged = isWholeChanged || (given.field.code == 43 && !given.isSame);
        }
        if (isWholeChanged)
            std::erase_if(fields, isWidth);
    }

    /// Each application's data in its place, as the list has it where it names the application.
    void appendXdata(FieldList &result) const
    {
        QHash<QString, QList<const Value *>> given;
        QStringList order;
        for (const Value &application : m_applications) {
            FieldList name;
            kernel::appendXdata(m_document, Value::list({application.car()}), name);
            order.append(name.front().text().toUpper());
            given[order.back()].append(&application);
        }
        for (const FieldList &before : applicationsOf(m_present)) {
            const auto named = given.find(before.front().text().toUpper());
            if (named == given.end() ||
                (!named->isEmpty() && lisp::isEqual(applicationItem(m_document, before), *named->front())))
                result.insert(result.end(), before.begin(), before.end());
            else if (!named->isEmpty())
                appendApplication(result, *named->front());
            if (named != given.end() && !named->isEmpty())
                named->removeFirst();
        }
        for (const QString &name : order)
            if (QList<const Value *> &left = given[name]; !left.isEmpty())
                appendApplication(result, *left.takeFirst());
    }

    void appendApplication(FieldList &result, const Value &application) const
    {
        FieldList data;
        kernel::appendXdata(m_document, application, data);
        if (data.size() > 1)
            result.insert(result.end(), data.begin(), data.end());
    }

    const Document &m_document;
    RecordId m_record;
    FieldList m_present;
    std::vector<ShownField> m_shown;
    QString m_type;
    QHash<Key, std::vector<int>> m_shownByKey;
    QHash<Key, int> m_counts; ///< of the groups of the list
    std::vector<Given> m_given;
    std::vector<Value> m_applications;
};

} // namespace

FieldList changedFields(const Document &document, RecordId record, const Value &list)
{
    return Change(document, record).apply(list);
}

} // namespace host::kernel
