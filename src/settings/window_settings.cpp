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

void WindowSettings::StoreWindowSettings() {
    StoreAllButProxy();
    Store(proxyValue);
    if (!projectPath.isEmpty())
        options.Set(option::lastProject, projectPath);
}

void WindowSettings::StoreAllButProxy() {
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i != proxyValue)
            Store(i);
    }
}

void WindowSettings::Store(std::size_t position) {
    options.Set(option::windowValues[position], values[position]);
}

} // namespace lanterra
