#include "settings/window_settings.h"

namespace lanterra {

namespace {

std::array<int, option::windowValues.size()> FirstValues() {
    std::array<int, option::windowValues.size()> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = option::windowValues[i].firstValue.toInt();
    return values;
}

} // namespace

WindowSettings::WindowSettings(Options &storedOptions, const QString &base)
    : options(storedOptions), projectPath(base), values(FirstValues()) {}

bool WindowSettings::Load() {
    const int first = options.Number(option::windowValues.front()).value_or(0);
    if (first != valueOff && first != valueOn) {
        values = FirstValues();
        return false;
    }
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = options.Number(option::windowValues[i]).value_or(values[i]);
    return true;
}

bool WindowSettings::StoreWindowSettings() {
    QList<OptionText> texts = AllButProxy();
    texts.append(Stored(proxyValue));
    if (!projectPath.isEmpty())
        texts.append({option::lastProject, projectPath});
    return options.SetAll(texts);
}

QList<OptionText> WindowSettings::AllButProxy() const {
    QList<OptionText> texts;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i != proxyValue)
            texts.append(Stored(i));
    }
    return texts;
}

OptionText WindowSettings::Stored(std::size_t position) const {
    return {option::windowValues[position], QString::number(values[position])};
}

} // namespace lanterra
