#include "modes/spider.h"

#include "support/text_file.h"
#include "support/text_template.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int panelOfAll = 0;
constexpr std::chrono::milliseconds shortestWait{0};

QString NoAnswerPage(const QString &task, const QString &reason) {
    return FillTemplate(ReadFileText(u":/modes/no_answer.htm"_s),
                        {{u"TASK"_s, task.toHtmlEscaped()}, {u"REASON"_s, reason.toHtmlEscaped()}});
}

} // namespace

Spider::Spider(EventQueue &eventQueue, const Clock &systemClock, const ClientFactory &makeClient)
    : queue(eventQueue), clock(systemClock) {
    for (int i = 0; i < tasksAtATime; ++i) {
        Worker &worker = workers.emplace_back(Worker{std::make_unique<SpiderExchange>(makeClient())});
        connect(worker.exchange.get(), &SpiderExchange::Progressed, this,
                [this, i](const QString &state) { ShowState(i, state); });
        connect(worker.exchange.get(), &SpiderExchange::Ended, this,
                [this, i](const QString &problem) { EndTask(i, problem); });
    }
}

void Spider::ClearTasks() {
    tasks.clear();
    currentTask = 0;
    stopped = false;
}

void Spider::SetProxy(const QString &server, int port) {
    for (Worker &worker : workers) {
        worker.exchange->Client().SetProxyServer(server);
        worker.exchange->Client().SetProxyPort(port);
    }
}

void Spider::Start(const QString &folder) {
    answerFolder = folder;
    nextTask = ended = 0;
    running = !tasks.empty();
    if (stopped) {
        Stop(); // now that there is a folder for the pages
        return;
    }
    for (int worker = 0; worker < tasksAtATime; ++worker)
        BeginNext(worker);
}

void Spider::Stop() {
    stopped = true;
    if (!std::exchange(running, false))
        return;
    for (Worker &worker : workers) {
        worker.exchange->Abort();
        worker.task = noTask;
    }
    for (int task = 0; task < TaskCount(); ++task) {
        if (ItemOf(task, u"status"_s).isEmpty())
            LeaveReason(task, u"The submission was canceled"_s);
    }
}

void Spider::BeginNext(int worker) {
    Worker &free = workers[static_cast<std::size_t>(worker)];
    free.task = running && nextTask < TaskCount() ? nextTask++ : noTask;
    if (free.task == noTask)
        return;
    free.began = clock.Elapsed();
    free.exchange->Begin({.address = ItemOf(free.task, u"URL"_s),
                          .post = ItemOf(free.task, u"Method"_s) == "POST"_L1,
                          .referrer = ItemOf(free.task, u"Referrer"_s),
                          .answerFile = AnswerFile(free.task)});
}

void Spider::ShowState(int worker, const QString &state) {
    const int task = workers[static_cast<std::size_t>(worker)].task;
    emit TaskProgress(panelOfAll + 1 + worker, ItemOf(task, u"Task"_s) + u": "_s + state, false, task);
}

void Spider::EndTask(int worker, const QString &problem) {
    const int task = std::exchange(workers[static_cast<std::size_t>(worker)].task, noTask);
    NoteEnd(task, problem);
    emit TaskProgress(panelOfAll, u"%1 of %2 done"_s.arg(++ended).arg(TaskCount()), true, task);
    emit TaskProgress(panelOfAll + 1 + worker, ItemOf(task, u"Task"_s) + u": "_s + ItemOf(task, u"status"_s),
                      false, task);
    if (ended == TaskCount())
        running = false;
    BeginNext(worker);
}

void Spider::NoteEnd(int task, const QString &problem) {
    Task &items = tasks[static_cast<std::size_t>(task)];
    items[u"status"_s] = problem.isEmpty() ? u"Success"_s : problem;
    if (problem.isEmpty())
        items[u"FileName"_s] = AnswerFile(task);
    else
        LeaveReason(task, problem);
}

// A page takes the place of an answer that is missing or broke off, so that the link to it says why.
void Spider::LeaveReason(int task, const QString &reason) {
    tasks[static_cast<std::size_t>(task)][u"FileName"_s] = AnswerFile(task);
    WriteFileText(AnswerFile(task), NoAnswerPage(ItemOf(task, u"Task"_s), reason));
}

QString Spider::AnswerFile(int task) const {
    return answerFolder + u"engine%1.htm"_s.arg(ItemOf(task, u"EngineNo"_s));
}

QString Spider::ItemOf(int task, const QString &name) const {
    const bool exists = task >= 0 && task < TaskCount();
    return exists ? tasks[static_cast<std::size_t>(task)].value(name) : QString();
}

QString Spider::TaskItem(const QString &name, const QString &value, int taskNo) {
    if (!value.isEmpty() && taskNo >= 0 && taskNo < TaskCount())
        tasks[static_cast<std::size_t>(taskNo)][name] = value;
    return ItemOf(taskNo, name);
}

void Spider::WaitForTasks() {
    queue.Wait(UntilNextTimeOut());
    CheckTimeOuts();
}

Spider::Milliseconds Spider::UntilNextTimeOut() const {
    Milliseconds wait = EventQueue::withoutEnd;
    for (const Worker &worker : workers) {
        if (worker.task != noTask)
            wait = std::min(wait, worker.began + timeOut - clock.Elapsed());
    }
    return std::max(wait, shortestWait);
}

void Spider::CheckTimeOuts() {
    for (int i = 0; i < tasksAtATime; ++i) {
        const Worker &worker = workers[static_cast<std::size_t>(i)];
        if (worker.task == noTask || clock.Elapsed() - worker.began < timeOut)
            continue;
        worker.exchange->Abort();
        EndTask(i, u"No answer within %1 s"_s.arg(TimeOut()));
    }
}

} // namespace lanterra
