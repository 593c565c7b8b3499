#include "tests/window/window_fixture.h"
#include "window/form_binder.h"

#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTableView>
#include <QTest>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

const QStringList panes{u"AboutPane"_s,    u"DescriptionPane"_s, u"OtherDataPane"_s,  u"SitesPane"_s,
                        u"CategoryPane"_s, u"SubmitPane"_s,      u"StatisticsPane"_s, u"SearchPane"_s};

/// Something of a form: its name is what a finding tells.
std::string NameOf(const QObject &face) {
    return (face.objectName() + u" of "_s + face.parent()->objectName()).toStdString();
}

bool IsPartOfAnother(const QWidget &widget) {
    return widget.objectName().isEmpty() || widget.objectName().startsWith("qt_"_L1);
}

bool TakesInput(const QWidget &widget) {
    if (IsPartOfAnother(widget))
        return false;
    if (const auto *const lines = qobject_cast<const QPlainTextEdit *>(&widget))
        return !lines->isReadOnly();
    return qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QCheckBox *>(&widget) || qobject_cast<const QRadioButton *>(&widget) ||
           qobject_cast<const QAbstractItemView *>(&widget) || qobject_cast<const QAbstractSlider *>(&widget);
}

bool IsWorked(const QWidget &widget) {
    return TakesInput(widget) || (qobject_cast<const QAbstractButton *>(&widget) && !IsPartOfAnother(widget));
}

/// The last "&" of a caption that isn't doubled, with its letter; nothing without one.
QString Mnemonic(QString text) {
    const qsizetype place = text.remove("&&"_L1).indexOf(u'&');
    return place < 0 ? QString() : text.mid(place + 1, 1).toLower();
}

QString GroupAround(const QWidget &widget) {
    for (const QWidget *around = widget.parentWidget(); around; around = around->parentWidget()) {
        if (const auto *const group = qobject_cast<const QGroupBox *>(around))
            return group->title();
    }
    return {};
}

class FormAgreementTest : public WindowFixture {
protected:
    FormAgreementTest() {
        program = std::make_unique<WindowProgram>(home.path());
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->inherits("QMainWindow") || top->inherits("QDialog"))
                forms << top;
        }
    }

    template <class Kind>
    QList<Kind *> All() const {
        QList<Kind *> all;
        for (const QWidget *form : forms)
            all += form->findChildren<Kind *>();
        return QList<Kind *>(all.begin(), all.end());
    }

    std::vector<const QObject *> Models() const {
        const Program &parts = program->program;
        return {&parts.frame,         &parts.frmStatus,  &parts.frmSettings,      &parts.frmWebBrowser,
                &parts.files,         &parts.frmReport,  &parts.frmProjectDialog, &parts.project.record,
                &parts.project.lists, &parts.statistics, &parts.submitForm,       &parts.modes,
                &parts.frmMulti,      &parts.frmWelcome, &parts.frmMain,          &parts.webSearch,
                &parts.frmTechSupp,   &parts.frmTop9,    &parts.frmSplash};
    }

    QList<QWidget *> forms;
};

TEST_F(FormAgreementTest, EveryInputHasAControlAndEveryControlAFace) {
    // Views on what only the window knows.
    const QStringList ownInputs{u"outcomes"_s, u"index"_s};
    // The focus goes to txtName to be out of the way, txtdata2 is nowhere shown, and the splash is painted.
    const QStringList faceless{u"txtName"_s, u"txtdata2"_s, u"lblVersion"_s};
    QSet<const QObject *> bound;
    for (const QObject *face : All<QObject>()) {
        const auto *const control = face->property(FormBinder::boundProperty).value<QObject *>();
        bound << control;
        const auto *const widget = qobject_cast<const QWidget *>(face);
        if (widget && TakesInput(*widget) && !ownInputs.contains(widget->objectName())) {
            EXPECT_TRUE(control) << NameOf(*widget) << " has no control";
        }
    }
    for (const QObject *model : Models()) {
        for (const QObject *control : model->children()) {
            if (!control->objectName().isEmpty() && !faceless.contains(control->objectName())) {
                EXPECT_TRUE(bound.contains(control)) << control->objectName().toStdString() << " of "
                                                     << model->metaObject()->className() << " has no face";
            }
        }
    }
}

/// The text by which a user knows something of a form.
QString Caption(const QWidget &form, const QString &name) {
    if (name == "title"_L1)
        return form.windowTitle();
    const QString object = name.section(u'.', 0, 0);
    auto *const face = form.findChild<QObject *>(object);
    if (!face)
        return u"there is no "_s + object;
    if (name.endsWith(".toolTip"_L1))
        return face->property("toolTip").toString();
    const auto *const widget = qobject_cast<const QWidget *>(face);
    if (widget && !name.endsWith(".group"_L1)) {
        for (const QLabel *label : form.findChildren<QLabel *>()) {
            if (label->buddy() == widget)
                return label->text();
        }
    }
    for (const char *property : {"title", "text"}) {
        const QString text = face->property(property).toString();
        if (!text.isEmpty() && text != "0"_L1 && !name.endsWith(".group"_L1))
            return text;
    }
    return widget ? GroupAround(*widget) : QString();
}

QString DefaultButton(const QWidget &form) {
    for (const QPushButton *button : form.findChildren<QPushButton *>()) {
        if (button->isDefault())
            return button->objectName();
    }
    return {};
}

TEST_F(FormAgreementTest, TextsAreThoseThatPeopleKnow) {
    QFile file(QStringLiteral(CAPTIONS));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QWidget *form = nullptr;
    int compared = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'['))
            form = &Form(line.mid(1, line.size() - 2));
        const QString name = line.section(" = "_L1, 0, 0);
        const QString wanted = line.section(" = "_L1, 1);
        if (!form || wanted.isEmpty())
            continue;
        QString caption = name == "default"_L1 ? DefaultButton(*form) : Caption(*form, name);
        if (!wanted.contains(u'&'))
            caption.remove(u'&');
        EXPECT_EQ(caption.trimmed(), wanted)
            << name.toStdString() << " of " << form->objectName().toStdString();
        ++compared;
    }
    EXPECT_GT(compared, 150);
}

TEST_F(FormAgreementTest, ScreenReadersHaveANameForAllThatIsWorked) {
    for (QWidget *widget : All<QWidget>()) {
        if (!IsWorked(*widget))
            continue;
        QAccessibleInterface *const face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(face) << NameOf(*widget);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << NameOf(*widget);
    }
}

/// Mnemonics that are within reach at the same time.
class Reach {
public:
    explicit Reach(const QString &reachName) : name(reachName) {}

    void Take(const QString &caption) {
        const QString letter = Mnemonic(caption);
        if (letter.isEmpty())
            return;
        if (taken.contains(letter))
            twice << name + u": "_s + letter;
        taken << letter;
    }
    void TakeAll(const QWidget &form) {
        for (const QAbstractButton *button : form.findChildren<QAbstractButton *>())
            Take(button->text());
        for (const QLabel *label : form.findChildren<QLabel *>()) {
            if (label->property(FormBinder::boundProperty).isNull())
                Take(label->text());
        }
        for (const QGroupBox *group : form.findChildren<QGroupBox *>())
            Take(group->title());
    }

    QStringList twice;

private:
    QString name;
    QStringList taken;
};

TEST_F(FormAgreementTest, MnemonicsLeadSomewhereAndToOneThing) {
    for (const QLabel *label : All<QLabel>()) {
        if (label->property(FormBinder::boundProperty).isNull() && !Mnemonic(label->text()).isEmpty()) {
            EXPECT_TRUE(label->buddy()) << NameOf(*label);
        }
    }
    QStringList twice;
    for (const QMenu *menu : All<QMenu>()) {
        Reach reach(menu->title());
        for (const QAction *entry : menu->actions())
            reach.Take(entry->text());
        twice += reach.twice;
    }
    for (const QWidget *form : forms) {
        if (form->inherits("QMainWindow"))
            continue;
        Reach reach(form->objectName());
        reach.TakeAll(*form);
        twice += reach.twice;
    }
    for (const QString &pane : panes) {
        Reach reach(pane);
        for (const QAction *menu : Find<QMenuBar>(u"MainWindow"_s, u"menubar"_s).actions())
            reach.Take(menu->text());
        reach.TakeAll(Widget(u"MainWindow"_s, u"sidebar"_s));
        reach.TakeAll(Form(pane));
        twice += reach.twice;
    }
    // Forced by captions that are given.
    const QStringList forced{u"&Options: s"_s, u"ProjectStartDialog: c"_s, u"TopEnginesDialog: s"_s};
    twice.sort();
    EXPECT_EQ(twice, forced);
}

/// What Tab leads to, once round, from the widget that has the focus.
QSet<const QWidget *> TabRound(const QWidget &form) {
    QSet<const QWidget *> round;
    for (QWidget *focus = QApplication::focusWidget(); focus && !round.contains(focus);
         focus = QApplication::focusWidget()) {
        round << focus;
        QTest::keyClick(form.window()->windowHandle(), Qt::Key_Tab);
    }
    return round;
}

TEST_F(FormAgreementTest, TabLeadsThroughAllThatIsWorked) {
    for (QWidget *form : forms) {
        const bool isMain = form->inherits("QMainWindow");
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([form] { return QApplication::activeWindow() == form; }))
            << form->objectName().toStdString();
        for (const QString &name : isMain ? panes : QStringList{form->objectName()}) {
            QWidget &part = isMain ? Form(name) : *form;
            if (isMain)
                program->program.frame.ShowPane(static_cast<Pane>(panes.indexOf(name)));
            QList<QWidget *> worked;
            for (QWidget *widget : part.findChildren<QWidget *>()) {
                // Of a set of radio buttons, Tab leads to the one that is on.
                if (IsWorked(*widget) && widget->isVisible() && !qobject_cast<QRadioButton *>(widget))
                    worked << widget;
            }
            for (QWidget *widget : worked)
                widget->setEnabled(true);
            if (worked.isEmpty())
                continue;
            worked.first()->setFocus();
            const QSet<const QWidget *> round = TabRound(part);
            for (const QWidget *widget : worked)
                EXPECT_TRUE(round.contains(widget)) << NameOf(*widget);
        }
        form->hide();
    }
}

} // namespace
} // namespace lanterra
