#pragma once

#include "settings/web_browser_form.h"
#include "window/form_dialog.h"

#include <memory>

namespace Ui {
class WebBrowserDialog;
}

namespace lanterra {

/// frmWebBrowser: the program that shows reports and web pages.
class WebBrowserDialog : public FormDialog {
    Q_OBJECT

public:
    /// The form must outlive the dialog.
    WebBrowserDialog(WebBrowserForm &form, QWidget *parent);
    ~WebBrowserDialog() override;
    Q_DISABLE_COPY_MOVE(WebBrowserDialog)

private:
    std::unique_ptr<Ui::WebBrowserDialog> ui;
};

} // namespace lanterra
