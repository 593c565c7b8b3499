#include "project/main_frame.h"

using namespace Qt::StringLiterals;

namespace lanterra {

MainFrame::MainFrame() {
    SetVisible(false);
    AddToForm(*this, Notice, u"Notice"_s);
}

QString MainFrame::Caption() const { return u"Zephyrine Lanterra 2 - "_s + projectName; }

void MainFrame::SetProjectName(const QString &name) {
    projectName = name;
    emit CaptionChanged(Caption());
}

void MainFrame::ShowPane(Pane pane) {
    shownPane = pane;
    emit PaneShown(pane);
}

void MainFrame::SetPointer(MousePointer newPointer) {
    if (pointer == newPointer)
        return;
    pointer = newPointer;
    emit PointerChanged(pointer);
}

} // namespace lanterra
