#include "host/app/playback/PromptAnswers.h"

#include "host/app/playback/PlaybackText.h"
#include "host/drawing/geometry/EntityGeometry.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

drawing::Vec3 toVec(const std::array<double, 3> &point)
{
    return {point[0], point[1], point[2]};
}

/// A point to show an entity by, when the session gives none.
drawing::Vec3 pointOn(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    for (const auto &piece : drawing::entityOutline(drawing, entity).pieces)
        if (!piece.points.empty())
            return piece.points.front();
    return {};
}

/// Corners in the order that says whether the box takes what lies within or also what it crosses.
kernel::WindowAnswer box(drawing::Vec3 left, drawing::Vec3 right, Verb verb)
{
    if (left.x > right.x)
        std::swap(left, right);
    return verb == Verb::Window ? kernel::WindowAnswer{left, right} : kernel::WindowAnswer{right, left};
}

/// The entities that a `select` or `pickhandle` names by their handles.
kernel::EntitiesAnswer entitiesFor(const QStringList &handles, const drawing::Drawing &drawing, QString &error)
{
    kernel::EntitiesAnswer entities;
    for (const QString &word : handles) {
        const drawing::RecordId record = drawing.find(drawing::Handle{word.toULongLong(nullptr, 16)});
        if (drawing::isValid(record) && drawing.isAlive(record))
            entities.entities.push_back(record);
        else if (error.isEmpty())
            error = tr("the drawing has no entity with the handle %1").arg(word);
    }
    return entities;
}

kernel::InputAnswer selectionFor(const Step &step, const drawing::Drawing &drawing, QString &error)
{
    static const QStringList wordsForSets = {u"all"_s, u"last"_s, u"previous"_s};
    if (step.words.size() == 1 && wordsForSets.contains(step.word(0).toLower()))
        return kernel::TextAnswer{step.word(0).toUpper()};
    return entitiesFor(step.words, drawing, error);
}

} // namespace

kernel::InputAnswer answerFor(const Step &step, const drawing::Drawing &drawing, QString &error)
{
    switch (step.verb) {
    case Verb::Pick:
        return kernel::PointAnswer{toVec(step.points.first())};
    case Verb::Hover:
        return kernel::PointerAnswer{toVec(step.points.first())};
    case Verb::Window:
    case Verb::Crossing:
        return box(toVec(step.points[0]), toVec(step.points[1]), step.verb);
    case Verb::Cancel:
    case Verb::Abandon:
        return kernel::CancelAnswer{};
    case Verb::Select:
        return selectionFor(step, drawing, error);
    case Verb::PickHandle: {
        const kernel::EntitiesAnswer found = entitiesFor(step.words.first(1), drawing, error);
        if (!error.isEmpty())
            return kernel::CancelAnswer{};
        const drawing::RecordId picked = found.entities.front();
        return kernel::EntityAnswer{picked,
                                    step.points.isEmpty() ? pointOn(drawing, picked) : toVec(step.points.first())};
    }
    default:
        return kernel::TextAnswer{step.word(0)};
    }
}

} // namespace host::app
