#include "support/sifrant.h"
#include "support/text_file.h"
#include "support/whole_file.h"
#include "tests/window/window_fixture.h"

#include <QDir>
#include <QLabel>

namespace lanterra {
namespace {

using namespace Qt::StringLiterals;

class TopEnginesWindowTest : public WindowFixture {
protected:
    /// Two engines that answer, one of them to a form, and one that never does. What is opened at the end is
    /// copied to the folder "shown".
    TopEnginesWindowTest() {
        GivenProject({u"Quillfind"_s}, u"cp -t %1 "_s.arg(Path("shown")));
        QString engines;
        for (const auto &[engine, path] :
             {std::pair(u"AltaVista"_s, u"/altavista/cgi-bin/newurl?ad=1&q=[url]"_s),
              {u"Excite"_s, u"/excite/cgi/add_url.cgi?look=excite&url=[url]&email=[email]"_s},
              {u"Silent"_s, u"/behave/silence?[url]"_s}})
            engines +=
                u"Search engine\r\nName=%1\r\n\r\n\r\nSubmit=%2\r\n\r\n"_s.arg(engine, park.Origin() + path);
        QByteArray key = "plavac";
        EXPECT_TRUE(WriteWholeFile(Path("engine.dat"), Sifrant().Sifriraj(engines.toLatin1(), key)));
        EXPECT_TRUE(QDir(home.path()).mkpath(u"Report"_s) && QDir(home.path()).mkpath(u"shown"_s));
        EXPECT_TRUE(WriteWholeFile(Path("Report/loop.dat"), "[engine_name]: [result]. "));
    }

    static Action Marks(QAnyStringView engine) { return ClicksMark("TopEnginesDialog", "List1", engine); }
    static Action ClicksDialog(QAnyStringView name) { return Clicks("TopEnginesDialog", name); }
    /// A line of the progress.
    static Condition Shows(const QString &text) {
        return {text, [text] {
                    const QList<QLabel *> lines =
                        Widget("TopEnginesDialog", "StatusBar1").findChildren<QLabel *>();
                    return std::any_of(lines.begin(), lines.end(),
                                       [&](const QLabel *line) { return line->text().endsWith(text); });
                }};
    }

    const Condition dialog = Up("TopEnginesDialog");
    const std::vector<Step> byPopup{{Up("MainWindow"), Presses(Qt::Key_U, Qt::AltModifier)},
                                    {Up("SubmitPane"), Clicks("SubmitPane", "cmdStart")},
                                    {Menu("Submit"), Chooses("Top Search engines")}};
    const std::vector<Step> byMenu{{Up("MainWindow"), Presses(Qt::Key_O, Qt::AltModifier)},
                                   {Menu("Options"), Chooses("Top Search Engines")}};
    const Step leaves{{u"end of the mode"_s,
                       [] { return Up("MainWindow").holds() && !Form("TopEnginesDialog").isVisible(); }},
                      ClosesWindow()};
};

TEST_F(TopEnginesWindowTest, ShowsItsProgressAndOpensItsReportHoweverItEnds) {
    const auto none = std::vector<Step>{{dialog, Marks("AltaVista")},
                                        {dialog, Marks("Excite")},
                                        {dialog, Marks("Silent")},
                                        {dialog, ClicksDialog("cmdSubmit")}};
    const Condition box = Box("Please select search engines!");
    const Condition held = Shows(u"2 of 3 done"_s);
    const struct {
        const char *name;
        std::vector<Step> steps;
        QString report;
    } cases[] = {
        {"by itself",
         byPopup + std::vector<Step>{{dialog, Marks("Silent")}, {dialog, ClicksDialog("cmdSubmit")}, leaves},
         u"AltaVista: Successful submission. Excite: Successful submission. "_s},
        {"by Stop",
         byMenu + std::vector<Step>{{dialog, ClicksDialog("cmdSubmit")},
                                    {Shows(u" - Excite: Success"_s), [] {}},
                                    {held, ClicksDialog("cmdStop")},
                                    leaves},
         u"AltaVista: Successful submission. Excite: Successful submission. Silent: Canceled. "_s},
        {"with an engine chosen beside its box",
         byMenu + none +
             std::vector<Step>{{box, Presses(Qt::Key_Return)},
                               {box, Marks("Excite")},
                               {box, Presses(Qt::Key_Return)},
                               leaves},
         u"Excite: Successful submission. "_s},
        {"by Cancel before it begins",
         byMenu + std::vector<Step>{{dialog, ClicksDialog("SSCommand1")}, leaves}, QString()},
        {"by the window's end in the dialog", byMenu + std::vector<Step>{{dialog, ClosesWindow()}},
         QString()},
        {"by the window's end in its box", byMenu + none + std::vector<Step>{{box, ClosesWindow()}},
         QString()},
        {"by the window's end in the job",
         byMenu + std::vector<Step>{{dialog, ClicksDialog("cmdSubmit")}, {held, ClosesWindow()}}, QString()},
    };
    for (const auto &[name, steps, report] : cases) {
        SCOPED_TRACE(name);
        QFile::remove(Path("shown/report.html"));
        PlayOnProject(steps);
        EXPECT_EQ(ReadFileText(Path("shown/report.html")), report);
    }
    EXPECT_EQ(ReadFileText(Path("Projects/Shop/report/URL0/report.html")),
              u"AltaVista: Successful submission. Excite: Successful submission. Silent: Canceled. "_s);
}

} // namespace
} // namespace lanterra
