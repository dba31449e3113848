#pragma once

#include "platform/kernel/CKvSelectionInput.h"

namespace host::kernel {

class Document;

/// Choosing entities of one document, as modules see it.
class SelectionInput final : public CKvSelectionInput
{
public:
    explicit SelectionInput(Document &document) : m_document(document) {}

    int select(const KvSelectionRequest &request, OdDbObjectIdArray &entities, OdString &error) override;
    int keepMatching(OdDbObjectIdArray &entities, const OdResBuf *filter, OdString &error) const override;
    int pickEntity(const OdString &prompt, OdDbObjectId &entity, OdGePoint3d &point) override;
    int drag(const OdDbObjectIdArray &entities, const OdGePoint3d &base, const OdString &prompt,
             OdGePoint3d &point) override;

private:
    Document &m_document;
};

} // namespace host::kernel
