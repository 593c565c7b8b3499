#pragma once

#include <QScreen>
#include <QWidget>

namespace lanterra {

/// The size that a window can have without leaving the screen that it comes up on. The desktop tells nobody
/// beforehand how wide its frame will be, so that is a guess.
inline QSize RoomOnScreen(const QWidget &window) {
    constexpr QSize frame(8, 36);
    return window.screen()->availableSize() - frame;
}

} // namespace lanterra
