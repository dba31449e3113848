#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace host::view {

/// How the characters that follow look, as the inline codes of multi-line text have set it.
struct MTextFormat
{
    double height = 1.0; ///< drawing units
    double widthFactor = 1.0;
    double oblique = 0.0;  ///< degrees
    double tracking = 1.0; ///< factor on the advance of each character
    QString fontName{};    ///< family or file; empty: as the style has it
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isOverlined = false;
    bool isStruck = false;
    int raise = 0;                       ///< 0 on the base line, 1 in the middle of the line, 2 at its top
    std::optional<int> colourIndex{};    ///< 0 by block, 256 by layer
    std::optional<quint32> trueColour{}; ///< 0xRRGGBB

    bool operator==(const MTextFormat &) const = default;
};

enum class MTextAlignment
{
    Default, ///< as the attachment point says
    Left,
    Center,
    Right,
    Justified
};

/// Indents of the paragraph, in drawing units, and how its lines stand.
struct MTextParagraph
{
    double firstIndent = 0.0; ///< of its first line, beside the left one
    double leftIndent = 0.0;
    double rightIndent = 0.0;
    MTextAlignment alignment = MTextAlignment::Default;
};

/// A piece of the text between two places where something may happen.
struct MTextToken
{
    enum class Kind
    {
        Word, ///< characters that stay together on a line
        Space,
        Tab,
        Stack,   ///< text over lower, a fraction or a tolerance
        NewLine, ///< end of a paragraph
        NewColumn
    };
    /// Between the two parts of a stack.
    enum class Bar
    {
        None,
        Horizontal,
        Diagonal
    };

    Kind kind = Kind::Word;
    QString text{};  ///< of a word or stack
    QString lower{}; ///< of a stack
    Bar bar = Bar::None;
    MTextFormat format{};
    MTextParagraph paragraph{}; ///< of the paragraph as far as its codes were read
};

/// Takes the inline codes of multi-line text apart.
///
/// Understood: \P \N \~ \\ \{ \} \L \l \O \o \K \k \H \W \Q \T \A \C \c \S \f \F \p, {groups}, and %% character codes.
/// Unknown codes are left out; unfinished ones end with the text. Groups nest as deep as the text is long.
class MTextParser
{
public:
    /// `text` must outlive the parser; `start` is how the entity says that letters look. Indents count in its height.
    MTextParser(QStringView text, const MTextFormat &start);

    /// All tokens in order; to be called once. Never fails: what makes no sense is left out, and costs grow with the
    /// length of the text.
    std::vector<MTextToken> parse();

private:
    void takeCode();
    void takeFormatCode(QChar code);
    void takeStack();
    void takeFont();
    void takeParagraph();
    QString argument();
    double number(const QString &argument, double current, bool *isRelative = nullptr) const;
    void flushWord();
    void add(MTextToken::Kind kind);

    QStringView m_text;
    qsizetype m_at = 0;
    MTextFormat m_format;
    double m_startHeight;
    MTextParagraph m_paragraph;
    std::vector<MTextFormat> m_groups;
    QString m_word;
    std::vector<MTextToken> m_tokens;
};

} // namespace host::view
