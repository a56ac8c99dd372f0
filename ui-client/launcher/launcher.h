// The run of the program: one object on each of its two threads.
#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

// The worker's thread: an event loop until it is told to quit.
class HandlerThread : public QThread {
    Q_OBJECT

  public:
    HandlerThread();
    ~HandlerThread() override;

  protected:
    void run() override;
};

// Drives the upgrade service from start to finish in one slot, on a thread of its own. Made,
// controlled and deleted on the main thread; deleted only after its thread was joined.
class Worker : public QObject {
    Q_OBJECT

  public:
    Worker();
    ~Worker() override;

    void StartThread();
    // Tells the thread's event loop to end.
    void QuitThread();
    // Waits, without a time limit, until the thread has ended.
    void JoinThread();

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

// Owns the worker and the window and connects them. Main thread.
class Launcher : public QObject {
    Q_OBJECT

  public:
    Launcher();
    ~Launcher() override;

    // Starts the worker thread.
    void Run();
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
