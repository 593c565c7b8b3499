#pragma once

#include <QStringView>
#include <array>

namespace lanterra {

/// One option of the program: where it is stored, and the text that takes the place of one never chosen.
struct Option {
    QStringView section;
    QStringView name;            ///< stored
    QStringView firstValue = {}; ///< stored
};

inline constexpr QStringView settingsSection = u"Settings";
inline constexpr QStringView startupSection = u"Startup";

/// All options. On and off are "1" and "0", and an option that was never written reads as the empty text.
namespace option {

inline constexpr Option loadLastProject{settingsSection, u"LoadLastProject", u"1"};
inline constexpr Option saveOnExit{settingsSection, u"SnimiNaIzlazu", u"1"};
inline constexpr Option createStatistic{settingsSection, u"CreateStatistic", u"1"};
inline constexpr Option checkForUpgrade{settingsSection, u"check_for_program_upgrade", u"1"};
/// Empty until the four options above got their first values.
inline constexpr Option optionsFilled{settingsSection, u"NB", u"10"};

inline constexpr Option useProxy{settingsSection, u"UseProxy"};
inline constexpr Option proxyServer{settingsSection, u"PSN"};
inline constexpr Option proxyPort{settingsSection, u"PORT"};

inline constexpr Option sameDescription{settingsSection, u"ms"};
/// "1" keeps the welcome form away at the start.
inline constexpr Option welcomeSeen{settingsSection, u"ch"};
/// Empty until the section "Startup" was deleted once.
inline constexpr Option startupCleared{settingsSection, u"GB", u"10"};
/// Empty until a request to the hit counter has ended.
inline constexpr Option counterAnswered{settingsSection, u"N"};
/// The program of the user's own browser with a blank behind it, empty for the desktop's.
inline constexpr Option browser{settingsSection, u"Browser"};

/// The two-state values of the window: "5" is off and "6" is on.
inline constexpr std::array<Option, 5> windowValues{Option{settingsSection, u"chh1", u"5"},
                                                    {settingsSection, u"chh2", u"6"},
                                                    {settingsSection, u"chh3", u"5"},
                                                    {settingsSection, u"chh4", u"6"},
                                                    {settingsSection, u"chh5", u"6"}};

/// Full path of the last project.
inline constexpr Option lastProject{startupSection, u"Base"};

} // namespace option

} // namespace lanterra
