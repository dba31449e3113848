#pragma once

#include <QFont>
#include <QString>

#include <array>
#include <atomic>
#include <mutex>
#include <unordered_map>

namespace host::view {

/// How wide the texts of a font of the machine are, in units of the font. Letters that stand by themselves are measured
/// once each; scripts whose letters change with their neighbours are measured as a whole. Safe from several threads at
/// once.
class LetterWidths
{
public:
    explicit LetterWidths(const QFont &font);

    double width(QStringView text) const;

private:
    double letterWidth(QChar letter) const;
    double measured(QStringView text) const;

    static constexpr std::size_t quickLetters = 0x500; ///< Latin, Greek and Cyrillic

    QFont m_font;
    mutable std::mutex m_measuring;
    mutable std::array<std::atomic<float>, quickLetters> m_quick; ///< below 0: not measured
    mutable std::unordered_map<char16_t, double> m_others;
};

} // namespace host::view
