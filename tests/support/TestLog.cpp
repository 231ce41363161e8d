#include "TestLog.h"

#include <cstdio>
#include <mutex>

namespace TestLog {

namespace {

struct State {
    std::mutex mutex; // one that ThreadSanitizer sees
    QList<QRegularExpression> expected;
    QStringList unexpected;
    QStringList infos;
};

State &state()
{
    static State s;
    return s;
}

void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    State &s = state();
    std::lock_guard lock(s.mutex);
    if (type == QtInfoMsg) {
        s.infos << text;
        return;
    }
    if (type == QtDebugMsg)
        return;
    // What the offscreen platform says about itself when a dialog opens.
    if (text.startsWith(QLatin1String("This plugin does not support")))
        return;
    for (const QRegularExpression &pattern : s.expected) {
        if (pattern.match(text).hasMatch())
            return;
    }
    std::fprintf(stderr, "unexpected message: %s\n", qPrintable(text));
    s.unexpected << text;
}

} // namespace

void install()
{
    qInstallMessageHandler(handle);
}

void expectWarning(const QRegularExpression &pattern)
{
    State &s = state();
    std::lock_guard lock(s.mutex);
    s.expected << pattern;
}

QStringList takeUnexpected()
{
    State &s = state();
    std::lock_guard lock(s.mutex);
    QStringList lines;
    lines.swap(s.unexpected);
    return lines;
}

QStringList infoLines()
{
    State &s = state();
    std::lock_guard lock(s.mutex);
    return s.infos;
}

void reset()
{
    State &s = state();
    std::lock_guard lock(s.mutex);
    s.expected.clear();
    s.unexpected.clear();
    s.infos.clear();
}

} // namespace TestLog
