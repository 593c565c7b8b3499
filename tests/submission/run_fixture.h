#pragma once

#include "tests/fakes/program_fixture.h"

namespace lanterra {

/// A run whose test plays the five servers.
class RunFixture : public ProgramFixture {
protected:
    /// Every exchange from now on is answered at the next turns of the queue.
    void EverySiteAnswers(const QByteArray &status) {
        for (int channel = 1; channel <= channelCount; ++channel) {
            Client(channel).onConnect = [this, channel, status](FakeHttpClient &) {
                queue.Post([this, channel, status] { Answer(channel, status); });
            };
        }
    }
    void NoSiteAnswers() {
        for (int channel = 1; channel <= channelCount; ++channel)
            Client(channel).onConnect = nullptr;
    }

    /// One whole exchange of a channel: connected, the answer, the end.
    void Answer(int channel, const QByteArray &status, const QByteArray &lines = {}) {
        FakeHttpClient &client = Client(channel);
        emit client.Connected();
        client.Receive("HTTP/1.1 " + status + "\r\n" + lines + "\r\n", "hello body\n");
        emit client.Done();
        emit client.Closing();
    }
    void Fail(int channel) { emit Client(channel).Error(61); }

    /// What happens when the run next waits with nothing to do.
    void WhenWaiting(ScriptedEventQueue::Step step) { queue.WhenIdle(std::move(step)); }

    void PressSubmit() { program->run.cmdStart_Click(); }
    void SubmitAnswered(const QByteArray &status) {
        EverySiteAnswers(status);
        PressSubmit();
    }

    QStringList Successful() const {
        return Names(program->result.SuccessfulNames, Result().SuccessfulCount());
    }
    QStringList Failed() const { return Names(program->result.FailedNames, Result().FailedCount()); }
    QString Site(int channel) const { return Form().channels.at(Index(channel)).site.Caption(); }
    QString Status(int channel) const { return Form().channels.at(Index(channel)).status.Caption(); }
    ButtonPicture Picture(int channel) const { return Form().channels.at(Index(channel)).button.Picture(); }
    const RunResult &Result() const { return program->result; }
    const SubmitForm &Form() const { return program->submitForm; }
    const SiteOutcome &Outcome(int site) const {
        return Result().outcomes.at(static_cast<std::size_t>(site));
    }
    SubmissionRun &Run() { return program->run; }

    static QStringList Numbered(int count) {
        QStringList names;
        for (int i = 1; i <= count; ++i)
            names.append(QStringLiteral("Site %1.").arg(i)); // the dot keeps one from being part of another
        return names;
    }

private:
    static std::size_t Index(int channel) { return static_cast<std::size_t>(channel - 1); }
    static QStringList Names(const NameList &list, int count) {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(list.At(i));
        return names;
    }
};

} // namespace lanterra
