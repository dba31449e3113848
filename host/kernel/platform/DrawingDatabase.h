#pragma once

#include "host/drawing/records/Drawing.h"
#include "platform/db/OdDbDatabase.h"

#include <map>
#include <memory>

namespace host::kernel {

class Document;

/// What every database of this host is: a drawing behind it.
class HostDatabase : public OdDbDatabase
{
public:
    virtual drawing::Drawing &drawing() = 0;

    /// The drawing behind `database`; null for null and where somebody else implements the class.
    static drawing::Drawing *drawingOf(OdDbDatabase *database);
};

/// A drawing file that was read beside the open drawings. It has blocks to look at and to copy; there is nothing to
/// change in it.
class FileDatabase final : public HostDatabase
{
public:
    explicit FileDatabase(std::unique_ptr<drawing::Drawing> drawing) : m_drawing(std::move(drawing)) {}

    drawing::Drawing &drawing() override { return *m_drawing; }
    OdString getFilename() const override { return m_drawing->path(); }
    OdDbDictionary *getNamedObjectsDictionary() override { return nullptr; }
    OdResBufPtr getSysVar(const OdString &) const override { return nullptr; }
    bool setSysVar(const OdString &, const OdResBuf &) override { return false; }
    void startTransaction() override {}
    void endTransaction() override {}
    OdDbBlockTableRecord *openActiveLayoutBTR() override;
    void flushGraphics() override {}
    OdResBufPtr entityData(const OdDbObjectId &) const override { return nullptr; }
    OdDbObjectId nextEntity(const OdDbObjectId &) const override { return {}; }
    int moveEntities(const OdDbObjectIdArray &entities, const OdGePoint3d &) override { return int(entities.size()); }

private:
    std::unique_ptr<drawing::Drawing> m_drawing;
};

/// A document's drawing as modules see it.
class DrawingDatabase final : public HostDatabase
{
public:
    explicit DrawingDatabase(Document &document);
    ~DrawingDatabase() override;

    Document &document() { return m_document; }

    drawing::Drawing &drawing() override;
    OdString getFilename() const override;
    OdDbDictionary *getNamedObjectsDictionary() override;
    OdResBufPtr getSysVar(const OdString &name) const override;
    bool setSysVar(const OdString &name, const OdResBuf &value) override;
    void startTransaction() override;
    void endTransaction() override;
    OdDbBlockTableRecord *openActiveLayoutBTR() override;
    void flushGraphics() override;
    OdResBufPtr entityData(const OdDbObjectId &object) const override;
    OdDbObjectId nextEntity(const OdDbObjectId &entity) const override;
    int moveEntities(const OdDbObjectIdArray &entities, const OdGePoint3d &by) override;

private:
    class Dictionary;
    class ActiveSpace;

    Document &m_document;
    std::unique_ptr<Dictionary> m_namedObjects;
    std::unique_ptr<ActiveSpace> m_activeSpace;
};

} // namespace host::kernel
