#include "TerminationSignal.h"

#include <QDebug>
#include <QSocketNotifier>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A handler may do no more than write a byte; the notifier reads it in the event loop.
std::atomic<int> &writeEnd()
{
    static std::atomic<int> descriptor{-1};
    return descriptor;
}

void handle(int number)
{
    const int before = errno;
    const char byte = char(number);
    const ssize_t written = ::write(writeEnd(), &byte, 1);
    (void)written;
    errno = before;
}

} // namespace

class TerminationSignal::Source {
public:
    explicit Source(TerminationSignal *owner)
    {
        writeEnd(); // made before a signal may ask for it
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
            qInfo() << "[Process] no pipe for the signals of the system";
            return;
        }
        m_readEnd = ends[0];
        writeEnd() = ends[1];
        m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, owner, [this, owner] {
            char byte = 0;
            while (::read(m_readEnd, &byte, 1) == 1)
                qInfo() << "[Process] asked to end by signal" << int(byte);
            owner->m_requested = true;
            emit owner->requested();
        });
        struct sigaction action {};
        action.sa_handler = handle;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_RESTART;
        for (int number : kSignals)
            ::sigaction(number, &action, nullptr);
    }

    ~Source()
    {
        for (int number : kSignals)
            std::signal(number, SIG_DFL);
        m_notifier.reset();
        const int write = writeEnd().exchange(-1);
        if (write >= 0)
            ::close(write);
        if (m_readEnd >= 0)
            ::close(m_readEnd);
    }

    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;

private:
    int m_readEnd{-1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

TerminationSignal::TerminationSignal(QObject *parent)
    : QObject(parent)
    , m_source(std::make_unique<Source>(this))
{
}

TerminationSignal::~TerminationSignal() = default;
