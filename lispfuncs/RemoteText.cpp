#include "lispfuncs/RemoteText.h"

#include "platform/db/OdDbDatabase.h"
#include "platform/db/RText.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"

#include <iterator>
#include <optional>

namespace ortakit {

namespace {

/// What is done to the database while one lives belongs together. Ends it whatever happens.
class Operation
{
public:
    explicit Operation(OdDbDatabase &database) : m_database(database) { m_database.startTransaction(); }
    ~Operation() { m_database.endTransaction(); }
    Operation(const Operation &) = delete;
    Operation &operator=(const Operation &) = delete;

private:
    OdDbDatabase &m_database;
};

/// The arguments of a call.
struct Request
{
    OdString contents;
    double rotation = 0;
    double height = 0;
    OdString expression;
    /// The link of the last of them.
    OdResBuf *last = nullptr;
};

/// Nothing when arguments are missing or of other types.
std::optional<Request> readRequest(OdResBuf *arguments)
{
    constexpr int types[] = {OdResBuf::kRtString, OdResBuf::kRtReal, OdResBuf::kRtReal, OdResBuf::kRtString};
    OdResBuf *links[std::size(types)];
    OdResBuf *link = arguments;
    for (std::size_t i = 0; i < std::size(types); ++i, link = link->next()) {
        if (!link || link->restype() != types[i])
            return {};
        links[i] = link;
    }
    return Request{links[0]->getString(), links[1]->getDouble(), links[2]->getDouble(), links[3]->getString(),
                   links[3]};
}

OdDbObjectId append(OdDbDatabase &database, const Request &request)
{
    const std::unique_ptr<RText> text = RText::createObject();
    const bool isExpression = !request.expression.isEmpty();
    text->setDatabaseDefaults(&database);
    text->setStringContents(isExpression ? request.expression : request.contents);
    text->setRotAngle(request.rotation);
    text->setHeight(request.height);
    text->setToExpression(isExpression);
    return database.openActiveLayoutBTR()->appendOdDbEntity(*text);
}

} // namespace

int createRtext()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    OdDbDatabase *database = document ? document->database() : nullptr;
    if (!lisp || !database)
        return kRtError;
    std::optional<Request> request;
    OdDbObjectId made;
    {
        const Operation operation(*database);
        request = readRequest(lisp->arguments());
        if (!request)
            return kRtNormal;
        made = append(*database, *request);
    }
    database->flushGraphics();
    lisp->returnEntityName(made);
    lisp->releaseArguments(request->last);
    return kRtNormal;
}

} // namespace ortakit
