#pragma once

#include "modes/spider_exchange.h"
#include "ports/clock.h"
#include "ports/event_queue.h"

#include <QHash>
#include <functional>
#include <vector>

namespace lanterra {

/// Works a list of tasks in the background, five at a time, a request each. A task is a set of named texts.
///
/// It reads URL (the whole request), Method ("POST", else GET), Referrer, EngineNo (which names the answer's
/// file) and Task (shown as progress), and writes status and FileName when the task has ended. status is
/// "Success" for a complete answer of whatever status, a redirection included, which isn't followed;
/// otherwise it tells what went wrong. FileName is the page that holds the answer, or tells why there is
/// none. Depth has no other value than 0: only the address itself is fetched. All other items are kept and
/// not looked at.
class Spider : public QObject {
    Q_OBJECT

public:
    using ClientFactory = std::function<std::unique_ptr<HttpClient>()>;

    static constexpr int tasksAtATime = 5;
    /// Of its progress: one for all tasks, then one for each that can be under way.
    static constexpr int panelCount = 1 + tasksAtATime;

    /// Queue and clock must outlive it. `makeClient` is called once for each task that can be under way.
    Spider(EventQueue &eventQueue, const Clock &systemClock, const ClientFactory &makeClient);

    // The list of tasks. It stays as it is while tasks are worked.
    void ClearTasks();
    void NewTask() { openTask.clear(); }
    void SetTaskItem(const QString &name, const QString &value) { openTask[name] = value; }
    void AddTask() { tasks.push_back(openTask); }

    /// Seconds that a task may take. 0 or less ends each at the first look of WaitForTasks.
    void SetTimeOut(int seconds) { timeOut = std::chrono::seconds(seconds); }
    int TimeOut() const { return static_cast<int>(timeOut.count()); }

    /// For all requests from the next one on; an empty name for none. See HttpClient.
    void SetProxy(const QString &server, int port);

    /// Begins the tasks and returns at once; each answer is saved in `folder`, which exists and ends in a
    /// separator. The last work must have ended.
    void Start(const QString &folder);

    /// Ends the work silently. Unfinished tasks get no status, only a page that tells it. Pressed while the
    /// list is still being made, it holds for the Start that follows: none of the tasks is begun then.
    void Stop();

    /// True from Start until all tasks have ended or Stop.
    bool Running() const { return running; }

    /// Sleeps until an event arrives or the time of a task is over, and ends those whose time is over. New
    /// tasks begin as others end, also without this; only time limits need it. Yields.
    void WaitForTasks();

    // Reading the tasks by index.
    void RewindTasks() { currentTask = 0; }
    int TaskCount() const { return static_cast<int>(tasks.size()); }
    /// How many of the tasks begun by Start have their status.
    int EndedCount() const { return ended; }
    void SetCurrentTask(int index) { currentTask = index; }
    /// An item of the current task. Empty if it has none, or there is no such task.
    QString TaskItem(const QString &name) const { return ItemOf(currentTask, name); }
    /// Stores an item of task `taskNo`; an empty value reads it instead. The text that the item then holds.
    QString TaskItem(const QString &name, const QString &value, int taskNo);

signals:
    /// While Running: `text`, if not empty, is for a panel of the progress, and `taskDone` tells that task
    /// `taskNo` has its status.
    void TaskProgress(int panel, const QString &text, bool taskDone, int taskNo);

private:
    using Task = QHash<QString, QString>;
    using Milliseconds = std::chrono::milliseconds;
    static constexpr int noTask = -1;

    /// One of the tasks that can be under way.
    struct Worker {
        std::unique_ptr<SpiderExchange> exchange;
        int task = noTask;
        Milliseconds began{0};
    };

    QString ItemOf(int task, const QString &name) const;
    QString AnswerFile(int task) const;
    void BeginNext(int worker);
    void ShowState(int worker, const QString &state);
    void EndTask(int worker, const QString &problem);
    void NoteEnd(int task, const QString &problem);
    void LeaveReason(int task, const QString &reason);
    Milliseconds UntilNextTimeOut() const;
    void CheckTimeOuts();

    EventQueue &queue;
    const Clock &clock;
    std::vector<Worker> workers;
    std::vector<Task> tasks;
    Task openTask;
    std::chrono::seconds timeOut{0};
    QString answerFolder;
    int currentTask = 0;
    int nextTask = 0; ///< the first that was not begun
    int ended = 0;    ///< number of tasks with a status
    bool running = false;
    bool stopped = false; ///< since the list was cleared
};

} // namespace lanterra
