#pragma once

#include "platform/rx/OdString.h"

#include <optional>

class CKvDocument;

/// A 16-bit integer variable of one document's database, for whoever may outlive the document: once it is closed there
/// is nothing to read and writing does nothing.
class DrawingSetting
{
public:
    /// `document` is not owned and may be null.
    DrawingSetting(CKvDocument *document, const OdString &name) : m_document(document), m_name(name) {}

    /// Nothing when the document is gone or its database has no such variable.
    std::optional<qint16> value() const;
    /// A value that the variable has already is not written again.
    void setValue(std::optional<qint16> value) const;

private:
    bool isOpen() const;

    CKvDocument *m_document;
    OdString m_name;
};
