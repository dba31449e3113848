#pragma once

#include "lispfuncs/PromptRequest.h"

class CKvUserInput;

namespace ortakit {

/// One call of a prompting function that brings its own option bits and keywords.
struct KeywordRequest
{
    int optionBits = 0;
    QStringList keywords;
    /// World coordinates.
    std::optional<OdGePoint3d> base;
    Blanks blanks = Blanks::EndTheAnswer;
    QString prompt;  ///< without options, default and colon
    QString options; ///< as the program wants them shown; empty: the host shows the keywords
    QString defaultText;

    /// Reads the arguments of a call that asks for a point, a string or a keyword. Throws ArgumentError.
    static KeywordRequest read(PromptKind kind, const OdResBuf *arguments, const CKvDocument &document);

    /// Hands bits and keywords to the host where there are any; otherwise those of an earlier (initget) stay in force.
    void setOptions(CKvUserInput &input) const;
    /// The prompt on a line of its own, as it is shown; empty when the program gave nothing to show. After
    /// setOptions().
    OdString shown(const CKvUserInput &input) const;
};

} // namespace ortakit
