// The run of the program: one object on each of its two threads.
#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

// The worker's thread: an event loop until it is told to quit. The destructor tells it, and waits.
class HandlerThread : public QThread {
    Q_OBJECT

  public:
    HandlerThread();
    ~HandlerThread() override;

  protected:
    void run() override;
};

// Drives the upgrade service from start to finish in one slot, on a thread of its own. Made,
// controlled and deleted on the main thread; the destructor waits for the run that was started.
class Worker : public QObject {
    Q_OBJECT

  public:
    Worker();
    ~Worker() override;

    // Where the system gives no thread, the worker works on the main thread.
    void StartThread();
    bool HasThread() const;
    // Tells the thread's event loop to end.
    void QuitThread();
    // Waits, without a time limit, until the thread has ended.
    void JoinThread();
    // Waits until the run that was started is over, even one that has not begun, and ends the
    // thread.
    void FinishRun();

  signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

  private slots:
    // The whole run; the client is opened on every path through it. Worker thread.
    void HandleServicce();

  private:
    HandlerThread* m_thread;
    Service* m_service;
};

// Owns the worker and the window and connects them. Main thread. The destructor waits for the run
// that was started.
class Launcher : public QObject {
    Q_OBJECT

  public:
    Launcher();
    ~Launcher() override;

    // Starts the worker thread.
    void Run();
    // Whether there is one; Start() does the whole run on this thread otherwise.
    bool HasThread() const;
    // Sets the worker to work. It ends with QCoreApplication::quit().
    void Start();

  signals:
    void sigStart();

  private slots:
    void LaunchDone();
    // `total` is at least 1.
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

  private:
    Worker* m_worker;
    ProcessingProgressDialog* m_dialog;
};
