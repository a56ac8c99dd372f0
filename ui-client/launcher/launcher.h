// The run: one object on each of two threads.
#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

// The worker's thread, which runs an event loop. The destructor quits it and waits.
class HandlerThread : public QThread {
    Q_OBJECT

  public:
    HandlerThread();
    ~HandlerThread() override;

  protected:
    void run() override;
};

// Runs the upgrade service in one slot, on its own thread. Created, called and deleted on the main
// thread. The destructor waits for the run.
class Worker : public QObject {
    Q_OBJECT

  public:
    Worker();
    ~Worker() override;

    // If no thread can be created, the worker stays on the main thread.
    void StartThread();
    bool HasThread() const;
    // Quits the thread's event loop.
    void QuitThread();
    // Waits for the end of the thread, without a limit.
    void JoinThread();
    // Waits for the end of a started run, even if it has not begun, and ends the thread.
    void FinishRun();

  signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

  private slots:
    // The whole run. Opens the client in every case. Worker thread.
    void HandleServicce();

  private:
    HandlerThread* m_thread;
    Service* m_service;
};

// Owns and connects the worker and the window. Main thread. The destructor waits for the run.
class Launcher : public QObject {
    Q_OBJECT

  public:
    Launcher();
    ~Launcher() override;

    // Starts the worker thread.
    void Run();
    // Whether there is a worker thread. Without it, Start() does the whole run.
    bool HasThread() const;
    // Starts the run, which ends with QCoreApplication::quit().
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
