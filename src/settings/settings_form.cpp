#include "settings/settings_form.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SettingsForm::SettingsForm(Options &storedOptions, WindowSettings &window, Dialogs &messageDialogs)
    : options(storedOptions), windowSettings(window), dialogs(messageDialogs) {
    SetVisible(false);
    AddToForm(*this, chkProxy, u"chkProxy"_s);
    AddToForm(*this, Text1, u"Text1"_s);
    AddToForm(*this, Text2, u"Text2"_s);
    AddToForm(*this, cmdOK, u"cmdOK"_s);
    AddToForm(*this, cmdCancel, u"cmdCancel"_s);
    for (const BoxOption &each : Boxes())
        AddToForm(*this, each.box, each.option.name.toString());
}

std::array<SettingsForm::BoxOption, 4> SettingsForm::Boxes() {
    return {{{LoadLastProject, option::loadLastProject},
             {SnimiNaIzlazu, option::saveOnExit},
             {CreateStatistic, option::createStatistic},
             {check_for_program_upgrade, option::checkForUpgrade}}};
}

void SettingsForm::Load() {
    CheckProxy(options.Number(option::useProxy) == 1);
    if (chkProxy.Checked()) {
        Text1.SetText(options.Text(option::proxyServer));
        Text2.SetText(options.Text(option::proxyPort));
    }
    if (options.Text(option::optionsFilled).isEmpty())
        FillFirstValues();
    else
        LoadBoxes();
}

void SettingsForm::FillFirstValues() {
    QList<OptionText> texts{{option::optionsFilled, option::optionsFilled.firstValue.toString()}};
    for (const BoxOption &each : Boxes()) {
        each.box.SetValue(each.option.firstValue.toInt());
        texts.append({each.option, QString::number(each.box.Value())});
    }
    options.SetAll(texts);
}

void SettingsForm::LoadBoxes() {
    for (const BoxOption &each : Boxes())
        each.box.SetValue(options.Number(each.option).value_or(each.box.Value()));
}

void SettingsForm::LoadProxyTexts() {
    Text1.SetText(options.Text(option::proxyServer));
    if (!Text1.Text().isEmpty())
        Text2.SetText(options.Text(option::proxyPort));
}

void SettingsForm::chkProxy_Click() {
    Text1.SetEnabled(chkProxy.Checked());
    Text2.SetEnabled(chkProxy.Checked());
}

void SettingsForm::cmdOK_Click() {
    CheckProxy(chkProxy.Checked() && !IsBlank(Text1.Text()));
    windowSettings.SetProxyInForce(chkProxy.Checked());
    emit ProxyConfirmed();
    const bool stored = StoreBoxes();
    SetVisible(false);
    if (!stored)
        dialogs.Show({u"The settings could not be saved. "_s, u"Error"_s, BoxIcon::Critical});
}

void SettingsForm::cmdCancel_Click() { SetVisible(false); }

void SettingsForm::CheckProxy(bool on) {
    chkProxy.SetValue(on ? 1 : 0);
    chkProxy_Click();
}

bool SettingsForm::StoreBoxes() {
    QList<OptionText> texts = windowSettings.AllButProxy();
    for (const BoxOption &each : Boxes())
        texts.append({each.option, QString::number(each.box.Value())});
    texts.append({option::useProxy, QString::number(chkProxy.Value())});
    texts.append({option::proxyServer, Text1.Text()});
    texts.append({option::proxyPort, Text2.Text()});
    return options.SetAll(texts);
}

} // namespace lanterra
