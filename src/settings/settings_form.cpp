#include "settings/settings_form.h"

namespace lanterra {

SettingsForm::SettingsForm(Options &storedOptions, WindowSettings &window)
    : options(storedOptions), windowSettings(window) {
    SetVisible(false);
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
    for (const BoxOption &each : Boxes()) {
        each.box.SetValue(each.option.firstValue.toInt());
        options.Set(each.option, each.box.Value());
    }
    options.Set(option::optionsFilled, option::optionsFilled.firstValue.toString());
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
    CheckProxy(chkProxy.Checked() && !Text1.Text().isEmpty());
    windowSettings.SetProxyInForce(chkProxy.Checked());
    emit ProxyConfirmed();
    StoreBoxes();
    SetVisible(false);
}

void SettingsForm::cmdCancel_Click() { SetVisible(false); }

void SettingsForm::CheckProxy(bool on) {
    chkProxy.SetValue(on ? 1 : 0);
    chkProxy_Click();
}

void SettingsForm::StoreBoxes() {
    for (const BoxOption &each : Boxes())
        options.Set(each.option, each.box.Value());
    windowSettings.StoreAllButProxy();
    options.Set(option::useProxy, chkProxy.Value());
    options.Set(option::proxyServer, Text1.Text());
    options.Set(option::proxyPort, Text2.Text());
}

} // namespace lanterra
