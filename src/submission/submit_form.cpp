#include "submission/submit_form.h"

using namespace Qt::StringLiterals;

namespace lanterra {

SubmitForm::SubmitForm() {
    const std::array siteNames{u"txtdata"_s, u"txtdata21"_s, u"txtdata3"_s, u"txtdata4"_s, u"txtdata5"_s};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const QString suffix = i == 0 ? QString() : QString::number(i + 1);
        AddToForm(*this, channels[i].site, siteNames[i]);
        AddToForm(*this, channels[i].status, u"LblStatus"_s + suffix);
        AddToForm(*this, channels[i].button, u"kan%1"_s.arg(i + 1));
        AddToForm(*this, channels[i].disableMark, u"mnuDisabled"_s + suffix);
        channels[i].button.SetPicture(ButtonPicture::Idle);
    }
    AddToForm(*this, Command1, u"Command1"_s);
    AddToForm(*this, Label2, u"Label2"_s);
    AddToForm(*this, Label28, u"Label28"_s);
    AddToForm(*this, Label29, u"Label29"_s);
    AddToForm(*this, Label30, u"Label30"_s);
    AddToForm(*this, Label31, u"Label31"_s);
    for (Label *counter : {&Label28, &Label29, &Label30, &Label31})
        counter->SetCaption(u"0"_s);
}

} // namespace lanterra
