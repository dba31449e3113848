#pragma once

#include "host/lisp/Value.h"
#include "platform/kernel/CKvLispEngine.h"

#include <vector>

namespace host::lisp {
class Arguments;
}

namespace host::kernel {

class Document;

/// The Lisp engine of a document as modules see it. Calls of external functions may nest: a handler may run Lisp that
/// calls another one.
class LispEngine final : public CKvLispEngine
{
public:
    explicit LispEngine(Document &document) : m_document(document) {}

    void defineFunction(const OdString &name, Handler handler) override;
    void undefineFunction(const OdString &name) override;
    OdResBuf *arguments() override;
    void releaseArguments(OdResBuf *first) override;
    OdDbObjectIdArray selectionMembers(const OdResBuf &set) const override;
    void returnNil() override;
    void returnTrue() override;
    void returnInteger(qint32 value) override;
    void returnReal(double value) override;
    void returnString(const OdString &value) override;
    void returnPoint(const OdGePoint3d &point) override;
    void returnEntityName(const OdDbObjectId &object) override;
    void returnSelectionSet(const OdDbObjectIdArray &entities) override;
    void returnList(OdResBufPtr chain) override;
    void setSymbol(const OdString &name, const OdResBuf &value) override;
    bool loadFile(const OdString &path) override;
    void print(const OdString &text) override;

private:
    /// A handler under way.
    struct Call
    {
        OdResBufPtr arguments;
        lisp::Value result;
    };
    class CallScope;

    lisp::Value call(const QString &name, Handler handler, lisp::Arguments &args);
    void setResult(lisp::Value value);

    Document &m_document;
    std::vector<Call> m_calls;
    /// Selection sets that result buffers of the calls under way refer to by place in this list, from 1.
    std::vector<lisp::Value> m_selections;
};

} // namespace host::kernel
