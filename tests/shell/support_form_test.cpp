#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SupportFormTest : public ProgramFixture {
protected:
    void GivenForm(const QByteArray &hosts) {
        GivenHosts(hosts);
        GivenMaster(SiteDatabaseBuilder());
        program->frmSettings.chkProxy.SetValue(1);
        program->frmSettings.Text1.SetText(u"proxy.example"_s);
        program->frmSettings.Text2.SetText(u"3128"_s);
    }

    /// What is done while the form is up.
    void OnForm(const std::function<void(SupportForm &)> &work) {
        forms.onForm[ModalForm::TechSupp] = [this, work] { work(program->frmTechSupp); };
        program->modes.mnuTechnical_Click();
    }

    static void FillInForm(SupportForm &form) {
        for (TextBox *box : {&form.Email, &form.Problem, &form.OS, &form.Computer})
            box->SetText(u"a@"_s);
        form.usName.SetText(u"Zo\u00eb & co"_s);
    }

    FakeHttpClient &Sender() {
        return ClientThat([](const FakeHttpClient *client) { return client->connects > 0; });
    }
};

TEST_F(SupportFormTest, PostsItsFieldsThroughTheProxy) {
    GivenForm("[Maker]\nFormMail=http://maker.example/mail.cgi\nSupportMail=help@maker.example\n");
    OnForm([this](SupportForm &form) {
        FillInForm(form);
        form.Command1_Click();
        emit Sender().Error(61); // behind the press, where it has no box
        form.Command1_Click();
        EXPECT_EQ(Sender().connects, 2);
        EXPECT_FALSE(form.Command1.Enabled());
        FakeHttpClient &client = Sender();
        EXPECT_EQ(client.Target(), u"http://maker.example/mail.cgi"_s);
        EXPECT_EQ(client.SaveFile(), home.filePath(u"tmp.mth"_s));
        EXPECT_EQ(client.ProxyServer(), u"proxy.example"_s);
        EXPECT_EQ(client.ProxyPort(), 3128);
        emit client.Connected();
        EXPECT_EQ(client.sentMethod, u"POST"_s);
        EXPECT_EQ(
            client.RequestHeaders(),
            QByteArray("Content-Type: application/x-www-form-urlencoded\r\nContent-Length: 176\r\n\r\n"
                       "recipient=help@maker.example&subject=LT+Technical+Support+Version 2.14&redirect="
                       "&realname=Zo\xEB+%26+co&email=a@&Problem=a@&OS=a@&Computer=a@&Other=No+comments"
                       "&UserName=Zo\xEB+%26+co"));
        ASSERT_TRUE(WriteWholeFile(home.filePath(u"tmp.htm"_s), "x"));
        emit client.Done();
        EXPECT_TRUE(form.Command1.Enabled());
    });
    EXPECT_EQ(dialogs.Told(), u"Zephyrine Lanterra: Thank you for your message! "_s);
    EXPECT_FALSE(QFile::exists(home.filePath(u"tmp.htm"_s)));
    EXPECT_EQ(Sender().aborts, 1) << "closing the form gives up what is under way";
    OnForm([](SupportForm &form) {
        EXPECT_EQ(form.usName.Text(), QString());
        EXPECT_EQ(form.Other.Text(), u"No comments"_s);
    });
}

TEST_F(SupportFormTest, TellsWhatIsMissingAndSendsNothing) {
    GivenForm("[Maker]\nFormMail=http://maker.example/mail.cgi\n");
    OnForm([](SupportForm &form) {
        for (TextBox *box : {&form.usName, &form.Email, &form.Problem, &form.OS, &form.Computer}) {
            FillInForm(form);
            box->SetText(u" "_s);
            form.Command1_Click();
        }
        FillInForm(form);
        form.Email.SetText(u"ann"_s);
        form.Command1_Click();
        EXPECT_TRUE(form.Command1.Enabled());
    });
    EXPECT_EQ(dialogs.Told(), u"Error: Please fill all text fields ! \n"_s.repeated(5) +
                                  u"Error: Please enter your full e-mail address! "_s);
    EXPECT_TRUE(std::all_of(clients.begin(), clients.end(), [](auto *each) { return each->connects == 0; }));
}

TEST_F(SupportFormTest, SendsNothingToAnEmptyAddress) {
    GivenForm("");
    OnForm([](SupportForm &form) {
        FillInForm(form);
        form.Command1_Click();
        EXPECT_TRUE(form.Command1.Enabled());
    });
    EXPECT_EQ(dialogs.Told(), u"Error: Server is unreachable!  "_s);
    EXPECT_EQ(program->frame.Pointer(), MousePointer::Default);
    program->frmTechSupp.Command2_Click();
    EXPECT_EQ(documents.Opened(), u"|https://www.lanterra.example/support/"_s);
}

} // namespace
