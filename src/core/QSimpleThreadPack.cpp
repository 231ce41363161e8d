#include "QSimpleThreadPack.h"

#include "QMutexGuard.h"

#include <QDebug>

#include <exception>

QSimpleThreadPack::QSimpleThreadPack(QObject *parent)
    : QThread(parent)
{
}

QSimpleThreadPack::QSimpleThreadPack(Function function, void *argument, QObject *parent)
    : QThread(parent)
    , fn(function)
    , arg(argument)
{
}

QSimpleThreadPack::~QSimpleThreadPack()
{
    wait();
    QUORIN_HAPPENS_AFTER(this);
}

bool QSimpleThreadPack::setFunction(Function function, void *argument)
{
    if (isRunning())
        return false;
    QUORIN_HAPPENS_AFTER(this);
    fn = function;
    arg = argument;
    return true;
}

void QSimpleThreadPack::run()
{
    try {
        if (fn)
            fn(arg);
    } catch (const std::exception &error) {
        qInfo() << "[Process] one-shot thread ended by an error:" << error.what();
    } catch (...) {
        qInfo() << "[Process] one-shot thread ended by an unknown error";
    }
    QUORIN_HAPPENS_BEFORE(this);
}
