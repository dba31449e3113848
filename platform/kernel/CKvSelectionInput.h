#pragma once

#include "platform/db/OdDbObjectId.h"
#include "platform/kernel/OdResBuf.h"

#include <vector>

/// How entities are to be chosen.
struct KvSelectionRequest
{
    /// What the user is asked; empty: the host's own prompt.
    OdString prompt;
    /// As the first argument of Lisp's (ssget): "X" the whole drawing, "W" a window, "P" the previous selection, ...,
    /// flags behind colons (":S" one step, ":L" nothing on locked layers); empty: the user chooses, or what is at the
    /// point where there is one.
    OdString method;
    /// Corners or vertices for the methods that take some; world coordinates.
    std::vector<OdGePoint3d> points;
    /// A filter list as it arrives from Lisp, from its list begin to its list end; null for none. Links behind the end
    /// are not read. Belongs to the caller.
    const OdResBuf *filter = nullptr;
};

/// Chooses entities of one document, by the user's hand or by place and filter. Requests to the user run until they are
/// answered. Results are KvResult codes; on any other than those named here nothing is written.
class KV_EXPORT CKvSelectionInput
{
public:
    virtual ~CKvSelectionInput() = default;

    /// Chooses: 5100 and `entities`, each once and in the order of choosing; 5000 when nothing was chosen; -5002 when
    /// the user cancelled; -5001 and `error`, a sentence, for a method, points or a filter that cannot be. What was
    /// chosen becomes the previous selection as after (ssget).
    virtual int select(const KvSelectionRequest &request, OdDbObjectIdArray &entities, OdString &error) = 0;
    /// Leaves of `entities` those that exist and pass `filter` (as in KvSelectionRequest; null passes all), in their
    /// order. 5100, or -5001 and `error` for a bad filter.
    virtual int keepMatching(OdDbObjectIdArray &entities, const OdResBuf *filter, OdString &error) const = 0;

    /// Asks for one entity: 5100 with `entity` and `point`, where it was picked in world coordinates; 5000 for an empty
    /// answer, -5001 when nothing was where the user picked, -5002 cancelled, -5005 a keyword of the last
    /// CKvUserInput::initget(), which CKvUserInput::input() has.
    virtual int pickEntity(const OdString &prompt, OdDbObjectId &entity, OdGePoint3d &point) = 0;
    /// Asks for a point while `entities` hang at the cursor by `base`, with a rubber band from there. The drawing is
    /// not changed. Codes as those of CKvUserInput::getPoint(), initget() included; world coordinates.
    virtual int drag(const OdDbObjectIdArray &entities, const OdGePoint3d &base, const OdString &prompt,
                     OdGePoint3d &point) = 0;
};
