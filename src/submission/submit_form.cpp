#include "submission/submit_form.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SubmitForm::SubmitForm() {
    const std::array siteNames{u"txtdata"_s, u"txtdata21"_s, u"txtdata3"_s, u"txtdata4"_s, u"txtdata5"_s};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const QString suffix = i == 0 ? QString() : QString::number(i + 1);
        channels[i].site.setObjectName(siteNames[i]);
        channels[i].status.setObjectName(u"LblStatus"_s + suffix);
        channels[i].button.setObjectName(u"kan%1"_s.arg(i + 1));
        channels[i].disableMark.setObjectName(u"mnuDisabled"_s + suffix);
        channels[i].button.SetPicture(ButtonPicture::Idle);
    }
    Label2.setObjectName(u"Label2"_s);
    Label28.setObjectName(u"Label28"_s);
    Label29.setObjectName(u"Label29"_s);
    Label30.setObjectName(u"Label30"_s);
    Label31.setObjectName(u"Label31"_s);
}

} // namespace lanterra
