#include "settings/web_browser_form.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr qsizetype longestIgnoredPath = 6; ///< characters, with the blank at the end

} // namespace

WebBrowserForm::WebBrowserForm(Options &storedOptions, Dialogs &fileDialogs, QString &base)
    : options(storedOptions), dialogs(fileDialogs), projectPath(base) {
    SetVisible(false);
    AddToForm(*this, Option1, u"Option1"_s);
    AddToForm(*this, Option2, u"Option2"_s);
    JoinAsOptions(Option1, Option2);
    AddToForm(*this, BrowserPath, u"BrowserPath"_s);
    AddToForm(*this, SSCommand1, u"SSCommand1"_s);
    AddToForm(*this, SSCommand2, u"SSCommand2"_s);
    AddToForm(*this, SSCommand3, u"SSCommand3"_s);
}

void WebBrowserForm::Load() { BrowserPath.SetText(options.Text(option::browser)); }

void WebBrowserForm::Show() {
    Choose(!IsBlank(BrowserPath.Text()));
    SetVisible(true);
}

void WebBrowserForm::Choose(bool ownBrowser) {
    Option2.SetValue(ownBrowser ? 1 : 0);
    BrowserPath.SetEnabled(ownBrowser);
    SSCommand3.SetEnabled(ownBrowser);
}

void WebBrowserForm::SSCommand1_Click() {
    QString text = BrowserPath.Text();
    if (!IsBlank(text) && !text.endsWith(u' '))
        text += u' ';
    if (!Option2.Checked() || text.size() <= longestIgnoredPath)
        text.clear();
    BrowserPath.SetText(text);
    options.Set(option::browser, text);
    SetVisible(false);
}

void WebBrowserForm::SSCommand3_Click() {
    FileDialog dialog;
    dialog.filter = u"(*.exe)|*.exe|All files|*"_s;
    dialog.defaultExtension = u"exe"_s;
    const auto chosen = dialogs.OpenFile(dialog);
    if (!chosen)
        return;
    // The program becomes the open project's path too and stays it until another project is opened. Saves up
    // to then find no project in that file and write nothing, which is what users of this form know.
    projectPath = *chosen;
    BrowserPath.SetText(projectPath);
}

} // namespace lanterra
