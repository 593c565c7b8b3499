#include "tests/shell/start_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using WelcomeFormTest = StartFixture;

TEST_F(WelcomeFormTest, SubscribesTheAddressAsItIsTypedAndTellsTheAnswer) {
    GivenHosts("[Maker]\nMailingList=http://127.0.0.1/\n");
    MakeProgram();
    for (const QString &address : {u"anna"_s, u"z\u00F6e+b@"_s}) {
        program->frmWelcome.Text2.SetText(address);
        program->frmWelcome.SSCommand1_Click();
    }
    FakeHttpClient &client = ClientThat([](auto *each) { return each->connects == 1; });
    emit client.Connected();
    EXPECT_EQ(client.RequestHeaders(),
              QByteArray("Content-Type: application/x-www-form-urlencoded\r\nContent-Length: 47\r\n\r\n"
                         "name=name&email=z\xF6\x65+b@&list=newsletter&what=add"));
    for (const QString &answer :
         {u"already: you HAVE been added to the mailing list, is already on the list"_s,
          u"IS already on the list"_s, u"thanks"_s}) {
        client.SetResponseText(answer);
        emit client.Done();
    }
    emit client.Error(61);
    emit client.Error(61); // told once
    EXPECT_EQ(dialogs.Told(), u"Error: Please enter your full e-mail address! \n"
                              "Zephyrine Lanterra: Thank you! You have been added to the mailing list \n"
                              "Error: Error! Your email is already on the list \n"
                              "Error: Error! \nError: Error! "_s);
}

TEST_F(WelcomeFormTest, ItsBoxIsUncheckedAtEachLoadAndBringsItBackHoweverItIsClosed) {
    forms.onForm[ModalForm::Welcome] = [this] { program->frmWelcome.Check1.SetValue(1); };
    program->frmMain.mnuWelcome_Click();
    forms.onForm.clear();
    program->frmMain.mnuWelcome_Click();
    EXPECT_EQ(Traced(), u"ch="_s);
}

} // namespace
