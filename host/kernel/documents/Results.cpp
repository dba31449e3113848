#include "host/kernel/documents/Results.h"

#include "host/drawing/records/Drawing.h"
#include "host/kernel/languages/Texts.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

struct NamedEntity
{
    QString handle;
    QString type;
};

NamedEntity namedEntity(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    if (!isValid(entity))
        return {};
    return {drawing.handle(entity).isNull() ? QString() : drawing.handle(entity).toString(),
            QString::fromLatin1(drawing.typeName(entity))};
}

QString stateName(Results::State state)
{
    return state == Results::State::Done ? u"done"_s : u"skipped"_s;
}

/// An object of JSON in one line.
QByteArray jsonLine(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

void Results::begin(const QString &title)
{
    m_title = title;
    m_rows.clear();
    m_done = 0;
    m_skipped = 0;
    m_isOpen = true;
}

bool Results::add(Row row)
{
    if (!m_isOpen)
        return false;
    ++(row.state == State::Done ? m_done : m_skipped);
    if (m_rows.size() >= mostRows)
        return false;
    m_rows.push_back(std::move(row));
    return true;
}

bool Results::end()
{
    if (!std::exchange(m_isOpen, false))
        return false;
    emit ended();
    return true;
}

QString Results::summary() const
{
    return Kernel::tr("%1: %2 done, %3 skipped").arg(m_title).arg(m_done).arg(m_skipped);
}

QString Results::toText(const drawing::Drawing &drawing, std::size_t most) const
{
    QString text = summary() + u'\n';
    for (std::size_t i = 0; i < std::min(most, m_rows.size()); ++i) {
        const NamedEntity named = namedEntity(drawing, m_rows[i].entity);
        const QStringList words = {stateName(m_rows[i].state), named.type, named.handle, m_rows[i].text};
        text += words.join(u'\t') + u'\n';
    }
    if (const qsizetype left = m_done + m_skipped - qsizetype(std::min(most, m_rows.size())); left > 0)
        text += Kernel::tr("and %1 more\n").arg(left);
    return text;
}

QByteArray Results::toJson(const drawing::Drawing &drawing) const
{
    QByteArray json = jsonLine({{u"title"_s, m_title}, {u"done"_s, m_done}, {u"skipped"_s, m_skipped}});
    json.chop(1);
    json += ",\"results\":[";
    const char *before = "\n";
    for (const Row &row : m_rows) {
        const NamedEntity named = namedEntity(drawing, row.entity);
        json += before + jsonLine({{u"state"_s, stateName(row.state)},
                                   {u"handle"_s, named.handle},
                                   {u"type"_s, named.type},
                                   {u"text"_s, row.text}});
        before = ",\n";
    }
    return json + "\n]}\n";
}

} // namespace host::kernel
