#pragma once

#include "platform/db/OdDbDatabase.h"
#include "platform/db/OdDbEntity.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvSelectionInput.h"
#include "platform/kernel/CKvUserInput.h"

#include <QHash>
#include <QMap>
#include <QVariant>

#include <deque>
#include <map>

namespace ortakit::test {

/// A chain of arguments: text, whole numbers (32-bit), reals, points, true (T) and invalid values (nil).
OdResBufPtr makeChain(const QVariantList &values);

/// A chain as Lisp would print it, its links with a blank between: 3 "text" T nil (1 2 3) ( "in a list" ).
QString chainText(const OdResBuf *chain);

/// A Lisp engine without a language: a test calls the functions that were defined and reads what they set.
class FakeLispEngine final : public CKvLispEngine
{
public:
    /// Runs the function `name` (any case) with `arguments` and gives its result code; 0 when there is none.
    int call(const QString &name, const QVariantList &arguments = {});

    /// What the last call gave back, printed; empty when it set no result.
    QString result() const { return m_result; }
    /// Types of the links of the last returned list.
    QList<int> resultTypes() const { return m_resultTypes; }
    /// How many arguments the last call gave back itself; -1 when it gave back none.
    int releasedArguments() const { return m_released; }
    /// Functions that are defined now, in lower case and alphabetical order.
    QStringList functions() const { return m_functions.keys(); }
    /// Defined and undefined names in the order they came in, as they were written; undefined ones after a minus.
    QStringList definitions() const { return m_definitions; }
    /// Lisp variables by lower-case name, printed.
    const QMap<QString, QString> &symbols() const { return m_symbols; }
    /// Files that were to be loaded, in order.
    const QStringList &loadedFiles() const { return m_loadedFiles; }
    /// Everything printed on the command line since the last clearing.
    QString printed() const { return m_printed; }
    void clearPrinted() { m_printed.clear(); }

    void defineFunction(const OdString &name, Handler handler) override;
    void undefineFunction(const OdString &name) override;
    OdResBuf *arguments() override { return m_arguments.get(); }
    void releaseArguments(OdResBuf *first) override;
    void returnNil() override { m_result = QStringLiteral("nil"); }
    void returnTrue() override { m_result = QStringLiteral("T"); }
    void returnInteger(qint32 value) override { m_result = QString::number(value); }
    void returnReal(double value) override { m_result = QString::number(value); }
    void returnString(const OdString &value) override { m_result = QStringLiteral("\"%1\"").arg(value); }
    void returnPoint(const OdGePoint3d &point) override;
    void returnEntityName(const OdDbObjectId &object) override
    {
        m_result = QStringLiteral("<%1>").arg(object.number());
    }
    /// Selection sets are not among the arguments that a test can make.
    OdDbObjectIdArray selectionMembers(const OdResBuf &) const override { return {}; }
    void returnSelectionSet(const OdDbObjectIdArray &entities) override
    {
        m_result = QStringLiteral("<set of %1>").arg(entities.size());
    }
    void returnList(OdResBufPtr chain) override;
    void setSymbol(const OdString &name, const OdResBuf &value) override;
    bool loadFile(const OdString &path) override
    {
        m_loadedFiles.append(path);
        return true;
    }
    void print(const OdString &text) override { m_printed += text; }

private:
    QMap<QString, Handler> m_functions;
    QStringList m_definitions;
    OdResBufPtr m_arguments;
    int m_released = -1;
    QString m_result;
    QList<int> m_resultTypes;
    QMap<QString, QString> m_symbols;
    QStringList m_loadedFiles;
    QString m_printed;
};

/// What the user answers to one request. An answer with code 5100 and no value takes the default.
struct FakeAnswer
{
    int code = kRtNormal;
    QVariant value;
    QString keyword;
};

/// A user whose answers were written down before. With none left, every request is cancelled.
class FakeUserInput final : public CKvUserInput
{
public:
    using Base = std::optional<OdGePoint3d>;

    void answer(const FakeAnswer &answer) { m_answers.push_back(answer); }
    /// Requests so far, each a line such as: getPoint "Corner: " from (1 2 3)
    const QStringList &requests() const { return m_requests; }

    void initget(int bits, const QStringList &keywords) override;
    /// Prompt, keywords of the last initget() in brackets, default in angle brackets, colon.
    OdString formatPrompt(const OdString &prompt, const OdString &defaultText) const override;
    /// In metres, and in degrees.
    OdString lengthText(double length) const override { return QStringLiteral("%1 m").arg(length); }
    OdString angleText(double angle) const override;
    int getInteger(const OdString &prompt, bool hasDefault, qint32 &value) override
    {
        return ask("getInteger", prompt, {}, defaultText(hasDefault, value), value);
    }
    int getReal(const OdString &prompt, bool hasDefault, double &value) override
    {
        return ask("getReal", prompt, {}, defaultText(hasDefault, value), value);
    }
    int getDistance(const OdString &prompt, const Base &base, bool hasDefault, double &value) override
    {
        return ask("getDistance", prompt, base, defaultText(hasDefault, value), value);
    }
    int getAngle(const OdString &prompt, const Base &base, bool hasDefault, double &value) override
    {
        return ask("getAngle", prompt, base, defaultText(hasDefault, value), value);
    }
    int getPoint(const OdString &prompt, const Base &base, OdGePoint3d &value) override
    {
        return ask("getPoint", prompt, base, {}, value);
    }
    int getCorner(const OdString &prompt, const OdGePoint3d &base, OdGePoint3d &value) override
    {
        return ask("getCorner", prompt, base, {}, value);
    }
    int getString(const OdString &prompt, bool allowSpaces, OdString &value) override;
    int getKeyword(const OdString &prompt, OdString &value) override
    {
        return ask("getKeyword", prompt, {}, value, value);
    }
    OdString input() const override { return m_input; }

private:
    FakeAnswer take(const char *kind, const QString &prompt, const Base &base, const QString &defaultText);
    static QString defaultText(bool has, double value) { return has ? QString::number(value) : QString(); }
    template <class T>
    int ask(const char *kind, const QString &prompt, const Base &base, const QString &defaultText, T &value)
    {
        const FakeAnswer answer = take(kind, prompt, base, defaultText);
        if (answer.code == kRtNormal && answer.value.isValid())
            value = answer.value.value<T>();
        return answer.code;
    }

    std::deque<FakeAnswer> m_answers;
    QStringList m_requests;
    QStringList m_keywords;
    QString m_input;
};

/// A user who is at the prompt and never picks anything: every request is cancelled.
class FakeSelectionInput final : public CKvSelectionInput
{
public:
    int select(const KvSelectionRequest &, OdDbObjectIdArray &, OdString &) override { return kRtCancel; }
    int keepMatching(OdDbObjectIdArray &, const OdResBuf *, OdString &) const override { return kRtNormal; }
    int pickEntity(const OdString &, OdDbObjectId &, OdGePoint3d &) override { return kRtCancel; }
    int drag(const OdDbObjectIdArray &, const OdGePoint3d &, const OdString &, OdGePoint3d &) override
    {
        return kRtCancel;
    }
};

/// A drawing's database of nothing but extension records in the named-object dictionary, integer variables and a count
/// of entities.
class FakeDatabase final : public OdDbDatabase, public OdDbDictionary, public OdDbBlockTableRecord
{
public:
    void setFilename(const QString &path) { m_filename = path; }
    /// A drawing of a version that has no dictionaries when false.
    void setHasDictionary(bool has) { m_hasDictionary = has; }

    OdString getFilename() const override { return m_filename; }
    OdDbDictionary *getNamedObjectsDictionary() override { return m_hasDictionary ? this : nullptr; }
    /// Makes the variable `name` (upper case) one that the database has.
    void addVariable(const QString &name, int value) { m_variables[name] = value; }
    /// What was set so far, in order: "NAME=value".
    const QStringList &settings() const { return m_settings; }

    OdResBufPtr getSysVar(const OdString &name) const override;
    bool setSysVar(const OdString &name, const OdResBuf &value) override;
    OdResBufPtr entityData(const OdDbObjectId &) const override { return nullptr; }
    OdDbObjectId nextEntity(const OdDbObjectId &) const override { return {}; }
    int moveEntities(const OdDbObjectIdArray &entities, const OdGePoint3d &) override { return int(entities.size()); }
    OdDbXrecord *getAt(const OdString &name) override;
    OdDbXrecord *setAt(const OdString &name) override;

    /// Entities are taken, and named from 1 on, until `reason` is given: then appending one throws it.
    void refuseEntities(const QString &reason) { m_refusal = reason; }
    /// What was done with entities so far: start, append, end, flush.
    const QStringList &steps() const { return m_steps; }
    void startTransaction() override { m_steps.append(QStringLiteral("start")); }
    void endTransaction() override { m_steps.append(QStringLiteral("end")); }
    OdDbBlockTableRecord *openActiveLayoutBTR() override { return this; }
    void flushGraphics() override { m_steps.append(QStringLiteral("flush")); }
    OdDbObjectId appendOdDbEntity(OdDbEntity &entity) override;

private:
    class Record;

    QString m_filename;
    bool m_hasDictionary = true;
    QStringList m_steps;
    QString m_refusal;
    quint64 m_entities = 0;
    QMap<QString, qint64> m_variables;
    QStringList m_settings;
    std::map<QString, std::shared_ptr<OdDbXrecord>> m_records;
};

/// An open document. Its user coordinate system is moved by userOrigin().
class FakeDocument final : public CKvDocument
{
public:
    void setSystemVariable(const QString &name, const QString &value) { m_variables[name.toLower()] = value; }
    void setUserOrigin(const OdGePoint3d &origin) { m_userOrigin = origin; }
    /// Makes or takes away the Lisp engine.
    void setHasLisp(bool has);

    FakeLispEngine &lisp() { return *m_lisp; }
    FakeUserInput &input() { return m_input; }
    FakeDatabase &fakeDatabase() { return m_database; }
    /// From now on the document has this database, such as a drawing that was read.
    void setDatabase(OdDbDatabasePtr database) { m_ownDatabase = std::move(database); }

    CKvLispEngine *lispEngine() override { return m_lisp.get(); }
    CKvUserInput *userInput() override { return &m_input; }
    CKvSelectionInput *selectionInput() override { return &m_selection; }
    OdDbDatabase *database() override { return m_ownDatabase ? m_ownDatabase.get() : &m_database; }
    OdString systemVariable(const OdString &name) const override { return m_variables.value(name.toLower()); }
    OdGePoint3d userToWorld(const OdGePoint3d &point) const override
    {
        return {point.x + m_userOrigin.x, point.y + m_userOrigin.y, point.z + m_userOrigin.z};
    }
    OdGePoint3d worldToUser(const OdGePoint3d &point) const override
    {
        return {point.x - m_userOrigin.x, point.y - m_userOrigin.y, point.z - m_userOrigin.z};
    }

private:
    std::unique_ptr<FakeLispEngine> m_lisp = std::make_unique<FakeLispEngine>();
    FakeUserInput m_input;
    FakeSelectionInput m_selection;
    FakeDatabase m_database;
    OdDbDatabasePtr m_ownDatabase;
    QHash<QString, QString> m_variables;
    OdGePoint3d m_userOrigin;
};

} // namespace ortakit::test
