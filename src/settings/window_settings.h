#pragma once

#include "settings/options.h"

#include <array>

namespace lanterra {

/// What the main window keeps from one start to the next: five two-state values, and the path of the project
/// that was open last. The third value tells whether a proxy is in force; the others are only carried along.
class WindowSettings {
public:
    static constexpr int valueOff = 5; ///< stored
    static constexpr int valueOn = 6;  ///< stored

    /// `base` is the path of the open project, empty for none. Both must outlive this.
    WindowSettings(Options &storedOptions, const QString &base);

    /// Reads the five values. If the first is neither 5 nor 6, all five get their first values and the result
    /// is false: nothing else of the window's settings is to be read then.
    bool Load();

    /// Stores the five values, and the path if there is one. False if the store could not take them.
    bool StoreWindowSettings();

    /// All values but the third, which reaches the store by StoreWindowSettings alone.
    QList<OptionText> AllButProxy() const;

    void SetProxyInForce(bool on) { values[proxyValue] = on ? valueOn : valueOff; }

    /// The value chh1 to chh5, 5 for off or 6 for on. `number` is 1 to 5; any other throws std::out_of_range.
    int Value(int number) const { return values.at(static_cast<std::size_t>(number - 1)); }

private:
    static constexpr std::size_t proxyValue = 2; ///< position of the third value

    OptionText Stored(std::size_t position) const;

    Options &options;
    const QString &projectPath;
    std::array<int, option::windowValues.size()> values;
};

} // namespace lanterra
