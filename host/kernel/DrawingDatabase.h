#pragma once

#include "host/drawing/Drawing.h"
#include "platform/db/OdDbDatabase.h"

#include <map>
#include <memory>

namespace host::kernel {

class Document;

/// A document's drawing as modules see it.
class DrawingDatabase final : public OdDbDatabase
{
public:
    explicit DrawingDatabase(Document &document);
    ~DrawingDatabase() override;

    Document &document() { return m_document; }

    OdString getFilename() const override;
    OdDbDictionary *getNamedObjectsDictionary() override;
    OdResBufPtr getSysVar(const OdString &name) const override;
    bool setSysVar(const OdString &name, const OdResBuf &value) override;

private:
    class Dictionary;

    Document &m_document;
    std::unique_ptr<Dictionary> m_namedObjects;
};

} // namespace host::kernel
