#pragma once

#include "platform/ed/OdEditorReactor.h"

/// The reactor kinds of the editor in one, for a class that listens to several: OdEditor::addReactor() finds out which
/// of them a reactor is and tells it of all these events.
///
/// It is added once and removed once. Handlers that are not overridden do nothing.
class KV_EXPORT CKvEditorReactor : public OdEditorReactor, public OdEdCommandStackReactor, public OdEdLispEngineReactor
{
};
