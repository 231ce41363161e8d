// A thread for one-shot work: it runs one plain function with one pointer and ends with it; it can be started
// again. Destroying the object waits for the function, which may still use what the pointer stands for.
#pragma once

#include <QThread>

class QSimpleThreadPack final : public QThread {
    Q_OBJECT

public:
    using Function = void (*)(void *);

    explicit QSimpleThreadPack(QObject *parent = nullptr);
    QSimpleThreadPack(Function function, void *argument, QObject *parent = nullptr);
    ~QSimpleThreadPack() override;

    // Only while the thread does not run; refused with false otherwise.
    bool setFunction(Function function, void *argument);

protected:
    void run() override;

private:
    Function fn{nullptr};
    void *arg{nullptr};
};
