#include "host/drawing/file/DamagedBinary.h"

#include "host/drawing/file/RecordTypes.h"
#include "host/drawing/tags/BinaryTags.h"
#include "host/drawing/tags/MarkerLines.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// As codeSizeOf(), where the first tag may be damaged: the names of sections tell.
CodeSize damagedCodeSize(QByteArrayView tags)
{
    for (const QByteArrayView name :
         {QByteArrayView("\2\0ENTITIES\0", 11), QByteArrayView("\2\0HEADER\0", 9), QByteArrayView("\2\0TABLES\0", 9)}) {
        if (findWord(tags, name) >= 0)
            return CodeSize::Two;
    }
    return codeSizeOf(tags);
}

/// Goes through the bytes of one file.
class DamagedBinaryScanner
{
public:
    DamagedBinaryScanner(QByteArrayView bytes, RecoveryReport &report)
        : m_bytes(bytes), m_report(report), m_codeSize(damagedCodeSize(bytes.sliced(binaryMark().size()))),
          m_reader(bytes.sliced(binaryMark().size()), m_codeSize)
    {
        m_recordBegin = m_reader.rest();
    }

    QByteArray run()
    {
        m_text.reserve(m_bytes.size() * 2);
        while (!m_isAtEnd) {
            const QByteArrayView before = m_reader.rest();
            BinaryTag tag;
            if (!m_reader.read(tag) || !isSoundStart(tag))
                goOnBehindDamage();
            else
                take(tag, before);
        }
        return std::move(m_text);
    }

private:
    bool isRecordStart(const BinaryTag &tag) const { return tag.code == 0 || (tag.code == 9 && m_isInHeader); }
    bool isSoundStart(const BinaryTag &tag) const
    {
        return !isRecordStart(tag) || (tag.code == 0 ? isPlausibleType(tag.value) : tag.value.startsWith('$'));
    }

    void take(const BinaryTag &tag, QByteArrayView before)
    {
        if (isRecordStart(tag)) {
            m_recordBegin = before;
            m_recordText = m_text.size();
            m_recordType = tag.value;
            m_isInHeader = tag.code == 9;
        } else if (tag.code == 2 && m_recordType == "SECTION") {
            m_isInHeader = tag.value == "HEADER";
        }
        appendAsText(m_text, tag, m_codeSize);
        if (tag.code == 0 && tag.value == "EOF")
            m_isAtEnd = true;
    }

    /// Takes back what was read of the record and looks for the next one.
    void goOnBehindDamage()
    {
        m_text.truncate(m_recordText);
        const QByteArrayView sync = findSync(m_recordBegin.sliced(std::min<qsizetype>(1, m_recordBegin.size())));
        const qint64 from = m_recordBegin.begin() - m_bytes.begin() + 1;
        const qint64 to = std::max<qint64>(from, sync.begin() - m_bytes.begin());
        const QString what = m_recordType.isEmpty() ? u"bytes"_s : QString::fromLatin1(m_recordType);
        m_report.add({RecoveryStep::Done::Dropped, RecoveryStep::Unit::Byte, from, to, what, m_reader.problem()});
        m_reader = BinaryTagReader(sync, m_codeSize);
        m_recordBegin = sync;
        m_recordType = {};
        m_isAtEnd = sync.isEmpty();
    }

    /// From the next known type or variable on; empty when there is none.
    QByteArrayView findSync(QByteArrayView bytes) const
    {
        while (!bytes.isEmpty()) {
            BinaryTag tag;
            const bool mayStart = bytes[0] == 0 || bytes[0] == 9;
            if (mayStart && BinaryTagReader(bytes.first(std::min(bytes.size(), longestStart)), m_codeSize).read(tag) &&
                ((tag.code == 0 && typeRole(tag.value) != TypeRole::Unknown) ||
                 (tag.code == 9 && tag.value.startsWith('$') && isPlausibleType(tag.value))))
                return bytes;
            bytes = bytes.sliced(1);
        }
        return bytes;
    }

    static constexpr qsizetype longestStart = 64;
    QByteArrayView m_bytes;
    RecoveryReport &m_report;
    CodeSize m_codeSize;
    BinaryTagReader m_reader;
    QByteArray m_text;
    qsizetype m_recordText = 0; ///< where the record that is read begins in the text
    QByteArrayView m_recordBegin;
    QByteArrayView m_recordType;
    bool m_isInHeader = false;
    bool m_isAtEnd = false;
};

} // namespace

QByteArray textOfDamagedBinary(QByteArrayView bytes, RecoveryReport &report)
{
    return DamagedBinaryScanner(bytes, report).run();
}

} // namespace host::drawing
