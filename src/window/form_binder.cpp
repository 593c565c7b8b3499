#include "window/form_binder.h"

#include "window/control_bindings.h"

#include <QAction>

namespace lanterra {

namespace {

// The first kind that fits both sides is the one: the more special kinds stand first.
bool Join(QObject &control, QObject &face) {
    return JoinCombo(control, face) || JoinText(control, face) || JoinCheck(control, face) ||
           JoinLabel(control, face) || JoinButton(control, face) || JoinList(control, face) ||
           JoinScroll(control, face) || JoinPlain(control, face);
}

QObject *FaceOf(const QWidget &form, const QString &name) {
    if (auto *widget = form.findChild<QWidget *>(name))
        return widget;
    return form.findChild<QAction *>(name);
}

} // namespace

void FormBinder::Bind(const QObject &model) const {
    for (QObject *control : model.children()) {
        if (control->objectName().isEmpty())
            continue;
        QObject *const face = FaceOf(form, control->objectName());
        if (!face || face->property(boundProperty).value<QObject *>() == control)
            continue;
        if (!Join(*control, *face))
            qFatal("The widget %s of %s does not fit its control.", qUtf8Printable(face->objectName()),
                   qUtf8Printable(form.objectName()));
        face->setProperty(boundProperty, QVariant::fromValue(control));
    }
}

} // namespace lanterra
