#include "window/about_pane.h"

#include "ui_about_pane.h"
#include "window/form_binder.h"
#include "window/icons.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {
constexpr QSize pictureSize(360, 225);
}

AboutPane::AboutPane(Program &program) : ui(std::make_unique<Ui::AboutPane>()) {
    ui->setupUi(this);
    FormBinder(*this).Bind(program.frmMain);
    ui->picture->setPixmap(ThemedIcon(u"about-picture"_s).pixmap(pictureSize));
}

AboutPane::~AboutPane() = default;

} // namespace lanterra
