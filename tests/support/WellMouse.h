// How a hand pulls at an image well, as steps of a story with the display's own mouse.

#pragma once

#include "editor/DraggableImageView.h"
#include "tests/support/RealMouse.h"

namespace tomely::samples {

inline QPoint middleOnScreen(const QWidget& widget)
{
    return onScreen(widget, widget.rect().center());
}

/// Presses on the well and pulls until `done`, which `name` tells in a failure.
inline void addPull(
    InputStory& story, const DraggableImageView& well, const char* name, std::function<bool()> done)
{
    story.once(
        "the mouse comes", [&well] { moveMouse(middleOnScreen(well)); },
        [&well] { return well.underMouse(); });
    story.once(
        "the press", [] { pressMouse(); }, [&well] { return well.downEvent() != nullptr; });
    story.repeat(
        name,
        [&well, distance = 0]() mutable {
            distance += 7;
            moveMouse(middleOnScreen(well) + QPoint(distance, distance) / 2);
        },
        std::move(done));
}

} // namespace tomely::samples
