#pragma once

#include "platform/db/OdDbEntity.h"
#include "platform/rx/OdError.h"
#include "platform/rx/OdRxClass.h"

/// A remote text: shows the text of a file or the value of an expression. New ones are at the origin with the default
/// normal, show a file and have neither a name of one nor a height.
class KV_EXPORT RText : public OdDbEntity
{
public:
    /// The description of the class; null while the module that brings it is not loaded.
    static OdRxClass *desc();
    /// A new one, made through the description; throws OdError when its module is not loaded.
    static std::unique_ptr<RText> createObject()
    {
        const OdRxClass *description = desc();
        if (!description)
            throw OdError(QStringLiteral("The module of remote texts (RText) is not loaded."));
        return std::unique_ptr<RText>(static_cast<RText *>(description->create().release()));
    }

    /// The name of the file, or the expression.
    /// Taken as it is: the file is looked for, or the expression evaluated, when the text is drawn.
    virtual void setStringContents(const OdString &contents) = 0;
    /// Whether the contents are an expression rather than the name of a file.
    /// It is a name for a new one.
    virtual void setToExpression(bool isExpression) = 0;
    /// In drawing units; throws OdError for what is not above 0.
    virtual void setHeight(double height) = 0;
    /// In radians from the x axis, counter-clockwise; throws OdError for what is no finite number. 0 for a new one.
    virtual void setRotAngle(double angle) = 0;
};
