#include "tests/window/window_fixture.h"
#include "window/form_binder.h"

#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <QTableView>
#include <QTest>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

const QStringList panes{u"AboutPane"_s,    u"DescriptionPane"_s, u"OtherDataPane"_s,  u"SitesPane"_s,
                        u"CategoryPane"_s, u"SubmitPane"_s,      u"StatisticsPane"_s, u"SearchPane"_s};

template <class... Kinds>
bool IsOneOf(const QWidget &widget) {
    return (qobject_cast<const Kinds *>(&widget) || ...);
}

/// Not the parts of which Qt makes its widgets.
bool IsOurs(const QWidget &widget) {
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_"_L1);
}

bool TakesInput(const QWidget &widget) {
    if (const auto *const lines = qobject_cast<const QPlainTextEdit *>(&widget))
        return IsOurs(widget) && !lines->isReadOnly();
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return IsOurs(widget) && ((button && button->isCheckable()) ||
                              IsOneOf<QLineEdit, QComboBox, QAbstractItemView, QAbstractSlider>(widget));
}

bool IsWorked(const QWidget &widget) {
    return TakesInput(widget) || (IsOurs(widget) && IsOneOf<QAbstractButton>(widget));
}

QObject *ControlOf(const QObject &face) {
    return face.property(FormBinder::boundProperty).value<QObject *>();
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

    /// Of all forms: the window owns the dialogs, and so what is on them.
    template <class Kind>
    static QList<Kind *> All() {
        return Form("MainWindow").findChildren<Kind *>();
    }

    std::vector<const QObject *> Models() const {
        const Program &parts = program->program;
        return {&parts.frame,         &parts.frmStatus,  &parts.frmSettings,      &parts.frmWebBrowser,
                &parts.files,         &parts.frmReport,  &parts.frmProjectDialog, &parts.project.record,
                &parts.project.lists, &parts.statistics, &parts.submitForm,       &parts.frmMulti,
                &parts.frmWelcome,    &parts.frmMain,    &parts.webSearch,        &parts.frmTechSupp,
                &parts.frmTop9,       &parts.frmSplash};
    }

    QList<QWidget *> forms;
};

TEST_F(FormAgreementTest, EveryInputHasAControlAndAName) {
    for (QWidget *widget : All<QWidget>()) {
        const std::string name = widget->objectName().toStdString();
        // The outcomes are a view of their own on the run.
        EXPECT_TRUE(!TakesInput(*widget) || ControlOf(*widget) || name == "outcomes") << name;
        EXPECT_TRUE(!IsWorked(*widget) ||
                    !QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
            << name;
    }
}

TEST_F(FormAgreementTest, EveryControlHasAFace) {
    // The focus goes to txtName to be out of the way, txtdata2 is nowhere shown, and the splash is painted.
    const QStringList faceless{QString(), u"txtName"_s, u"txtdata2"_s, u"lblVersion"_s};
    QSet<const QObject *> bound;
    for (const QObject *face : All<QObject>())
        bound << ControlOf(*face);
    for (const QObject *model : Models()) {
        for (const QObject *control : model->children())
            EXPECT_TRUE(bound.contains(control) || faceless.contains(control->objectName()))
                << control->objectName().toStdString() << " of " << model->metaObject()->className();
    }
}

/// The text by which a user knows something of a form, or one of its properties.
QString TextOf(const QWidget &form, const QString &name) {
    const QString object = name.section(u'.', 0, 0);
    const QString property = name.section(u'.', 1);
    const QObject *face = object.isEmpty() ? &form : form.findChild<QObject *>(object);
    if (!face || !property.isEmpty())
        return face ? face->property(qUtf8Printable(property)).toString() : u"no such name"_s;
    for (const QLabel *label : form.findChildren<QLabel *>()) {
        if (label->buddy() == face)
            return label->text();
    }
    for (; face != &form; face = face->parent()) {
        QString text = face->property("text").toString() + face->property("title").toString();
        if (!text.isEmpty() && text != "0"_L1)
            return text;
    }
    return {};
}

TEST_F(FormAgreementTest, TextsAreThoseThatPeopleKnow) {
    QFile file(QStringLiteral(CAPTIONS));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QWidget *form = nullptr;
    for (const QString &line : QString::fromUtf8(file.readAll()).section(u"\n\n"_s, 1).split(u'\n')) {
        if (line.startsWith(u'['))
            form = &Form(line.mid(1, line.size() - 2));
        const QString wanted = line.section(u" = "_s, 1);
        if (wanted.isEmpty())
            continue;
        QString text = TextOf(*form, line.section(u" = "_s, 0, 0)).trimmed();
        EXPECT_EQ(wanted.contains(u'&') ? text : text.remove(u'&'), wanted) << line.toStdString();
    }
}

QStringList MnemonicTexts(const QWidget &form) {
    QStringList texts;
    for (const QAbstractButton *button : form.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const QLabel *label : form.findChildren<QLabel *>())
        texts << (ControlOf(*label) ? QString() : label->text());
    for (const QGroupBox *group : form.findChildren<QGroupBox *>())
        texts << group->title();
    return texts;
}

QStringList Texts(const QList<QAction *> &entries) {
    QStringList texts;
    for (const QAction *entry : entries)
        texts << entry->text();
    return texts;
}

/// The keys that stand for two of these texts, behind the name of where that is.
QStringList Twice(const QString &where, const QStringList &texts) {
    QStringList keys, twice;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty() && keys.contains(key))
            twice << where + u' ' + key;
        keys << key;
    }
    return twice;
}

TEST_F(FormAgreementTest, MnemonicsLeadToOneThing) {
    QStringList twice;
    for (const QLabel *label : All<QLabel>())
        EXPECT_TRUE(ControlOf(*label) || label->buddy() || !label->text().contains(u'&'))
            << label->objectName().toStdString() << " leads nowhere";
    for (const QMenu *menu : All<QMenu>())
        twice += Twice(menu->title(), Texts(menu->actions()));
    const QStringList everywhere = Texts(Find<QMenuBar>("MainWindow", "menubar").actions()) +
                                   MnemonicTexts(Widget("MainWindow", "sidebar"));
    for (const QString &pane : panes)
        twice += Twice(pane, everywhere + MnemonicTexts(Form(pane)));
    for (const QWidget *form : forms)
        twice += form->inherits("QDialog") ? Twice(form->objectName(), MnemonicTexts(*form)) : QStringList();
    twice.sort();
    // Captions that are given force these.
    EXPECT_EQ(twice,
              QStringList({u"&Options Alt+S"_s, u"ProjectStartDialog Alt+C"_s, u"TopEnginesDialog Alt+S"_s}));
}

/// Goes round with Tab from the first widget that is worked.
void ExpectTabLeadsThrough(const QWidget &part) {
    QList<QWidget *> worked;
    for (QWidget *widget : part.findChildren<QWidget *>()) {
        // Of a set of radio buttons, Tab leads to the one that is on.
        if (IsWorked(*widget) && widget->isVisible() && !IsOneOf<QRadioButton>(*widget))
            worked << widget;
    }
    for (QWidget *widget : worked)
        widget->setEnabled(true);
    if (!worked.isEmpty())
        worked.first()->setFocus();
    QSet<QWidget *> round;
    for (QWidget *at = QApplication::focusWidget(); !round.contains(at); at = QApplication::focusWidget()) {
        round << at;
        QTest::keyClick(part.window()->windowHandle(), Qt::Key_Tab);
    }
    for (QWidget *widget : worked)
        EXPECT_TRUE(round.contains(widget)) << widget->objectName().toStdString();
}

TEST_F(FormAgreementTest, TabLeadsThroughAllThatIsWorked) {
    for (QWidget *form : forms) {
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([form] { return QApplication::activeWindow() == form; }));
        if (form->inherits("QDialog"))
            ExpectTabLeadsThrough(*form);
        for (int pane = 0; form->inherits("QMainWindow") && pane < panes.size(); ++pane) {
            program->program.frame.ShowPane(static_cast<Pane>(pane));
            ExpectTabLeadsThrough(Form(panes.at(pane)));
        }
        form->hide();
    }
}

} // namespace
} // namespace lanterra
