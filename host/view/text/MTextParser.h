#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace host::view {

/// How the characters that follow look, as the inline codes of multi-line text have set it.
struct MTextFormat
{
    double height = 1.0;      ///< drawing units; codes set 1e-9 to 1e12
    double widthFactor = 1.0; ///< of letters; codes set 0.01 to 100
    double oblique = 0.0;     ///< degrees to the right of upright; codes set -85 to 85
    double tracking = 1.0;    ///< factor on the advance of each character; codes set 0.1 to 10
    QString fontName{};       ///< family or file; empty: as the style has it
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isOverlined = false;
    bool isStruck = false;
    int raise = 0;                       ///< 0 on the base line, 1 in the middle of the line, 2 at its top
    std::optional<int> colourIndex{};    ///< 0 by block, 256 by layer; nothing: as the entity
    std::optional<quint32> trueColour{}; ///< 0xRRGGBB; goes before the index

    bool operator==(const MTextFormat &) const = default;
};

/// How the lines of a paragraph stand between its sides.
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
/// Understood: \P \N \X \~ \\ \{ \} \L \l \O \o \K \k \H \W \Q \T \A \C \c \S \f \F \p, {groups}, and %% character
/// codes. A code without its semicolon ends with what can be its argument (see MTextArguments.h). What is no code, or
/// lacks its argument, is shown as it stands, so that no text vanishes. Groups nest as deep as the text is long.
class MTextParser
{
public:
    /// `text` must outlive the parser; `start` is how the entity says that letters look. Indents count in its height.
    MTextParser(QStringView text, const MTextFormat &start);

    /// All tokens in order; to be called once. Never fails: what makes no sense is left out, and costs grow with the
    /// length of the text.
    std::vector<MTextToken> parse();

private:
    /// What stands behind a backslash.
    void takeCode();
    /// A code that changes m_format or m_paragraph. Numbers out of range leave what was there, or give the usual one.
    /// False for what is no code.
    bool takeFormatCode(QChar code);
    bool takeNumberCode(QChar code);
    void setNumber(QChar code, const QString &argument);
    /// upper^lower, upper/lower or upper#lower; a backslash takes the next character literally.
    bool takeStack();
    /// Family|b1|i0|c0|p0, or the name of a font file alone.
    bool takeFont();
    /// Indents and alignment; tab stops and line spacing are left out.
    bool takeParagraph();
    /// `current` for what is no number; `isRelative` when an "x" stands behind it.
    double number(const QString &argument, double current, bool *isRelative = nullptr) const;
    void flushWord();
    /// A token without a text, behind the word under way.
    void add(MTextToken::Kind kind);

    QStringView m_text;
    qsizetype m_at = 0; ///< in m_text
    MTextFormat m_format;
    double m_startHeight; ///< what indents are multiples of
    MTextParagraph m_paragraph;
    std::vector<MTextFormat> m_groups; ///< what holds again behind each group that is open
    QString m_word;                    ///< the word under way
    std::vector<MTextToken> m_tokens;
};

} // namespace host::view
