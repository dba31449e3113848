#pragma once

#include "platform/ed/OdEditorReactor.h"

/// The reactor kinds of the editor in one, for a class that listens to several.
class KV_EXPORT CKvEditorReactor : public OdEditorReactor, public OdEdCommandStackReactor, public OdEdLispEngineReactor
{
};
