#pragma once

#include "Lisp.h"
#include "Supply.h"
#include "platform/kernel/CKvLispEngine.h"

namespace sample {

/// The Lisp engine of a document as the module knows it, over the toy Lisp.
///
/// A function of the module may show a dialog, and the user may close the document meanwhile. So whoever evaluates
/// something holds the engine until that has come back, and not the document.
class LispEngine final : public CKvLispEngine
{
public:
    /// The toy Lisp itself, for what the host defines.
    Lisp &lisp() { return m_lisp; }

    /// How many functions the module has defined here.
    int functionCount() const { return int(m_functions.size()); }
    /// Takes away what the module left defined. Its code may not be called once it is unloaded.
    void forgetFunctions();
    /// Evaluates all forms of `text`. Throws LispError.
    Value run(const QString &text) { return m_lisp.evaluate(read(text)); }

    void defineFunction(const OdString &name, Handler handler) override;
    void undefineFunction(const OdString &name) override;
    OdResBuf *arguments() override;
    void releaseArguments(OdResBuf *first) override;
    OdDbObjectIdArray selectionMembers(const OdResBuf &) const override
    {
        return notSupplied<OdDbObjectIdArray>("CKvLispEngine::selectionMembers");
    }
    void returnNil() override { setResult({}); }
    void returnTrue() override { setResult(truth(true)); }
    void returnInteger(qint32 value) override { setResult({qint64(value)}); }
    void returnReal(double value) override { setResult({value}); }
    void returnString(const OdString &value) override { setResult({value}); }
    void returnPoint(const OdGePoint3d &at) override { setResult({Value::List{{at.x}, {at.y}, {at.z}}}); }
    void returnEntityName(const OdDbObjectId &) override { notSupplied("CKvLispEngine::returnEntityName"); }
    void returnSelectionSet(const OdDbObjectIdArray &) override { notSupplied("CKvLispEngine::returnSelectionSet"); }
    void returnList(OdResBufPtr chain) override;
    void setSymbol(const OdString &name, const OdResBuf &value) override;
    bool loadFile(const OdString &path) override;
    void print(const OdString &text) override;

private:
    /// A running call of the module's: they nest, when a dialog loads a file that calls again.
    struct Call
    {
        OdResBufPtr arguments;
        Value result;
    };
    Value call(const QString &name, Handler handler, const Value::List &arguments);
    void setResult(const Value &value);

    Lisp m_lisp;
    QList<QString> m_functions;
    std::vector<Call> m_calls;
};

} // namespace sample
