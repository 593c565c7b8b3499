#pragma once

#include "controls/label.h"

#include <QString>

namespace lanterra {

/// The eight panes of the main window, by their names. One of them is on view.
enum class Pane {
    FrameAbout,
    FrameDescription,
    FrameOtherData,
    FrameEngineList,
    fraCat,
    FrameSUBMIT,
    FraSta,
    fraSearch
};

/// The pointers that a long job shows.
enum class MousePointer { Default = 0, Arrow = 1, Hourglass = 11, WaitingArrow = 13, Busy = 99 };

/// What belongs to the main window as a whole: whether it is there, its caption, the pane on view, its
/// pointer. It is visible from when the start of the program has opened a project until the program ends.
class MainFrame : public Control {
    Q_OBJECT

public:
    MainFrame();

    /// Asks the face to end the program, as its close box does. Returns at once: the end comes when
    /// everything on the stack has returned.
    void RequestClose() { emit CloseRequested(); }

    /// The caption is the product's name followed by the project's.
    QString Caption() const;
    void SetProjectName(const QString &name);

    Pane ShownPane() const { return shownPane; }
    void ShowPane(Pane pane);

    Label Notice; ///< one line that tells what went wrong without stopping anybody; empty for nothing

    MousePointer Pointer() const { return pointer; }
    void SetPointer(MousePointer newPointer);

signals:
    void CloseRequested();
    void CaptionChanged(const QString &caption);
    /// Also when the pane was on view already, so that it comes to the front.
    void PaneShown(lanterra::Pane pane);
    void PointerChanged(lanterra::MousePointer pointer);

private:
    QString projectName;
    Pane shownPane = Pane::FrameAbout;
    MousePointer pointer = MousePointer::Default;
};

} // namespace lanterra
