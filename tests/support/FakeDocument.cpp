#include "tests/support/FakeDocument.h"

#include "platform/rx/OdError.h"

#include <QtMath>

namespace ortakit::test {

namespace {

QString pointText(const OdGePoint3d &point)
{
    return QStringLiteral("(%1 %2 %3)").arg(point.x).arg(point.y).arg(point.z);
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString linkText(const OdResBuf &link)
{
    switch (link.restype()) {
    case OdResBuf::kRtReal:
    case OdResBuf::kRtAngle:
        return QString::number(link.getDouble());
    case OdResBuf::kRtPoint:
    case OdResBuf::kRtPoint3d:
        return pointText(link.getPoint3d());
    case OdResBuf::kRtString:
        return quoted(link.getString());
    case OdResBuf::kRtListBegin:
        return QStringLiteral("(");
    case OdResBuf::kRtListEnd:
        return QStringLiteral(")");
    case OdResBuf::kRtNil:
        return QStringLiteral("nil");
    case OdResBuf::kRtTrue:
        return QStringLiteral("T");
    default:
        return QString::number(link.getInteger());
    }
}

OdResBufPtr makeLink(const QVariant &value)
{
    if (!value.isValid())
        return OdResBuf::newRb(OdResBuf::kRtNil);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return OdResBuf::newRb(value.toBool() ? OdResBuf::kRtTrue : OdResBuf::kRtNil);
    case QMetaType::Int:
        return OdResBuf::newInteger(OdResBuf::kRtLong, value.toInt());
    case QMetaType::Short:
        return OdResBuf::newInteger(OdResBuf::kRtShort, value.toInt());
    case QMetaType::Double:
        return OdResBuf::newReal(OdResBuf::kRtReal, value.toDouble());
    case QMetaType::QString:
        return OdResBuf::newString(OdResBuf::kRtString, value.toString());
    default:
        return OdResBuf::newPoint(OdResBuf::kRtPoint3d, value.value<OdGePoint3d>());
    }
}

} // namespace

OdResBufPtr makeChain(const QVariantList &values)
{
    OdResBufPtr first;
    OdResBuf *last = nullptr;
    for (const QVariant &value : values) {
        OdResBufPtr link = makeLink(value);
        if (last) {
            last = last->setNext(std::move(link));
        } else {
            first = std::move(link);
            last = first.get();
        }
    }
    return first;
}

QString chainText(const OdResBuf *chain)
{
    QStringList links;
    for (const OdResBuf *link = chain; link; link = link->next())
        links.append(linkText(*link));
    return links.join(QLatin1Char(' '));
}

int FakeLispEngine::call(const QString &name, const QVariantList &arguments)
{
    const Handler handler = m_functions.value(name.toLower());
    if (!handler)
        return 0;
    m_arguments = makeChain(arguments);
    m_released = -1;
    m_result.clear();
    m_resultTypes.clear();
    const int code = handler();
    m_arguments.reset();
    return code;
}

void FakeLispEngine::defineFunction(const OdString &name, Handler handler)
{
    m_functions[name.toLower()] = handler;
    m_definitions.append(name);
}

void FakeLispEngine::undefineFunction(const OdString &name)
{
    m_functions.remove(name.toLower());
    m_definitions.append(QLatin1Char('-') + name);
}

void FakeLispEngine::releaseArguments(OdResBuf *first)
{
    if (!first)
        return;
    m_released = 0;
    for (const OdResBuf *link = first; link; link = link->next())
        ++m_released;
    if (m_arguments.get() == first) {
        m_arguments.reset();
        return;
    }
    for (OdResBuf *link = m_arguments.get(); link; link = link->next()) {
        if (link->next() == first) {
            link->takeNext();
            return;
        }
    }
}

void FakeLispEngine::returnPoint(const OdGePoint3d &point)
{
    m_result = pointText(point);
}

void FakeLispEngine::returnList(OdResBufPtr chain)
{
    m_result = chainText(chain.get());
    m_resultTypes.clear();
    for (const OdResBuf *link = chain.get(); link; link = link->next())
        m_resultTypes.append(link->restype());
}

void FakeLispEngine::setSymbol(const OdString &name, const OdResBuf &value)
{
    m_symbols[name.toLower()] = linkText(value);
}

FakeAnswer FakeUserInput::take(const char *kind, const QString &prompt, const Base &base, const QString &defaultText)
{
    m_requests.append(QString::fromLatin1(kind) + QLatin1Char(' ') + quoted(prompt) +
                      (base ? QStringLiteral(" from ") + pointText(*base) : QString()) +
                      (defaultText.isEmpty() ? QString() : QStringLiteral(" default ") + defaultText));
    m_input.clear();
    if (m_answers.empty())
        return {.code = kRtCancel, .value = {}, .keyword = {}};
    FakeAnswer answer = m_answers.front();
    m_answers.pop_front();
    if (answer.code == kRtKeyword)
        m_input = answer.keyword;
    m_keywords.clear();
    return answer;
}

void FakeUserInput::initget(int bits, const QStringList &keywords)
{
    m_keywords = keywords;
    m_requests.append(QStringLiteral("initget %1 %2").arg(bits).arg(keywords.join(QLatin1Char(' '))).trimmed());
}

OdString FakeUserInput::formatPrompt(const OdString &prompt, const OdString &defaultText) const
{
    QString text = prompt;
    if (!m_keywords.isEmpty())
        text += QStringLiteral(" [%1]").arg(m_keywords.join(QLatin1Char('/')));
    if (!defaultText.isEmpty())
        text += QStringLiteral(" <%1>").arg(defaultText);
    return text + QStringLiteral(": ");
}

OdString FakeUserInput::angleText(double angle) const
{
    return QStringLiteral("%1 deg").arg(qRadiansToDegrees(angle), 0, 'f', 2);
}

int FakeUserInput::getString(const OdString &prompt, bool allowSpaces, OdString &value)
{
    const int code = ask(allowSpaces ? "getString with spaces" : "getString", prompt, {}, value, value);
    if (code == kRtKeyword)
        value.clear();
    return code;
}

class FakeDatabase::Record final : public OdDbXrecord
{
public:
    OdResBufPtr rbChain() const override { return copy(m_chain.get()); }
    bool setFromRbChain(const OdResBuf *chain) override
    {
        m_chain = copy(chain);
        return true;
    }

private:
    static OdResBufPtr copyLink(const OdResBuf &link);
    static OdResBufPtr copy(const OdResBuf *chain);

    OdResBufPtr m_chain;
};

OdResBufPtr FakeDatabase::Record::copyLink(const OdResBuf &link)
{
    const int code = link.restype();
    if (code < 10 || (code >= 300 && code < 310) || code >= 1000)
        return OdResBuf::newString(code, link.getString());
    if (code < 60 || (code >= 140 && code < 150))
        return OdResBuf::newReal(code, link.getDouble());
    return OdResBuf::newInteger(code, link.getInteger());
}

OdResBufPtr FakeDatabase::Record::copy(const OdResBuf *chain)
{
    if (!chain)
        return nullptr;
    OdResBufPtr first = copyLink(*chain);
    OdResBuf *last = first.get();
    for (const OdResBuf *link = chain->next(); link; link = link->next())
        last = last->setNext(copyLink(*link));
    return first;
}

OdResBufPtr FakeDatabase::getSysVar(const OdString &name) const
{
    const auto found = m_variables.constFind(name.toUpper());
    return found == m_variables.cend() ? nullptr : OdResBuf::newInteger(OdResBuf::kRtShort, *found);
}

bool FakeDatabase::setSysVar(const OdString &name, const OdResBuf &value)
{
    if (!m_variables.contains(name.toUpper()))
        return false;
    m_variables[name.toUpper()] = value.getInteger();
    m_settings.append(QStringLiteral("%1=%2").arg(name).arg(value.getInteger()));
    return true;
}

OdDbObjectId FakeDatabase::appendOdDbEntity(OdDbEntity &)
{
    if (!m_refusal.isEmpty())
        throw OdError(m_refusal);
    m_steps.append(QStringLiteral("append"));
    return OdDbObjectId(++m_entities);
}

OdDbXrecord *FakeDatabase::getAt(const OdString &name)
{
    const auto found = m_records.find(name.toLower());
    return found == m_records.end() ? nullptr : found->second.get();
}

OdDbXrecord *FakeDatabase::setAt(const OdString &name)
{
    std::shared_ptr<OdDbXrecord> &record = m_records[name.toLower()];
    if (!record)
        record = std::make_shared<Record>();
    return record.get();
}

void FakeDocument::setHasLisp(bool has)
{
    if (has != bool(m_lisp))
        m_lisp = has ? std::make_unique<FakeLispEngine>() : nullptr;
}

} // namespace ortakit::test
