#pragma once

#include "controls/button.h"
#include "controls/check_box.h"
#include "controls/label.h"

#include <array>

namespace lanterra {

inline constexpr int channelCount = 5;

/// What the pane FrameSUBMIT shows of one channel.
struct ChannelDisplay {
    Label site;           ///< txtdata, txtdata21, txtdata3, txtdata4, txtdata5
    Label status;         ///< LblStatus, LblStatus2 to LblStatus5
    Button button;        ///< kan1 to kan5
    CheckBox disableMark; ///< the mark of the entry mnuDisabled, mnuDisabled2 to mnuDisabled5
};

/// The pane FrameSUBMIT: the channels, the counters of the run and the address under way.
class SubmitForm : public QObject {
    Q_OBJECT

public:
    SubmitForm();

    std::array<ChannelDisplay, channelCount> channels;
    Button Command1; ///< "Pause", marked while it holds
    Label Label2;    ///< current URL
    Label Label28;   ///< total
    Label Label29;   ///< covered
    Label Label30;   ///< successful
    Label Label31;   ///< failed
};

} // namespace lanterra
