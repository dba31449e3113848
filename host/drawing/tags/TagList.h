#pragma once

#include "host/drawing/tags/Tag.h"
#include "host/drawing/tags/TextCodec.h"

#include <span>
#include <vector>

namespace host::drawing {

/// The tags of one record in file order, the type (group 0) first, with typed access by group code. A view, valid as
/// long as its record is not changed and its drawing lives. Comments (999) are among the tags.
class TagList
{
public:
    TagList(std::vector<Tag> tags, const TextCodec &codec) : m_tags(std::move(tags)), m_codec(&codec) {}

    // All tags, whoever they belong to.
    auto begin() const { return m_tags.begin(); }
    auto end() const { return m_tags.end(); }
    size_t size() const { return m_tags.size(); }
    const Tag &operator[](size_t index) const { return m_tags[index]; }
    /// The code page that its texts are in.
    const TextCodec &codec() const { return *m_codec; }

    /// What stands in front of an embedded object and extended data, {...} groups included.
    std::span<const Tag> own() const &;
    std::span<const Tag> own() const && = delete;
    /// The first tag with this code that is the record's own: not inside a {...} group of 102, and for codes below 1000
    /// neither in an embedded object nor behind extended data. Null when there is none.
    const Tag *find(int code) const &;
    const Tag *find(int code) const && = delete; ///< the tag would be gone with the list
    /// As find(), but only after the subclass marker (group 100) `subclass`; in records without markers (R12) anywhere.
    const Tag *find(int code, QByteArrayView subclass) const &;
    const Tag *find(int code, QByteArrayView subclass) const && = delete;

    // The value of find(code), decoded or read as a number; `otherwise` where there is no such tag, and for numbers
    // where it has none. Each call goes through the tags.
    QString text(int code, const QString &otherwise = {}) const;
    double real(int code, double otherwise = 0.0) const;
    qint64 integer(int code, qint64 otherwise = 0) const;
    Handle handle(int code) const; ///< null without
    /// The point whose x has this code; parts that are missing are taken from `otherwise`.
    Vec3 point(int code, const Vec3 &otherwise = {}) const;
    /// All own points whose x has this code, in order (vertices, control points). Only tags after `from` are looked
    /// at.
    std::vector<Vec3> points(int code, size_t from = 0) const;
    /// Likewise all numbers; 0 for what is none.
    std::vector<double> reals(int code, size_t from = 0) const;

    /// The value of one tag as text, in the drawing's code page; the tag must be of this drawing.
    QString decoded(const Tag &tag) const { return m_codec->decode(tag.value); }
    /// The point that starts at tag `index`; `next` is set to the first tag behind it.
    Vec3 pointAt(size_t index, size_t *next = nullptr) const;
    /// All tags but comments, points in one piece, values typed by tagType(). A value that does not read as its type
    /// (a real that is no number) comes as text.
    FieldList fields() const;
    /// The one field that starts at tag `index`; `next` is set to the first tag behind it.
    Field fieldAt(size_t index, size_t *next = nullptr) const;

private:
    std::vector<Tag> m_tags;
    const TextCodec *m_codec;
};

} // namespace host::drawing
