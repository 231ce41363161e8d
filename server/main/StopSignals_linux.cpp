#include "StopSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int watched[] = {SIGTERM, SIGINT, SIGHUP};

// The writing end of the pipe. The one thing that a signal may touch.
volatile std::sig_atomic_t writingEnd = -1;

void onSignal(int)
{
    const int before = errno;
    const char byte = 1;
    // A full pipe holds a request already.
    [[maybe_unused]] const ssize_t written = ::write(writingEnd, &byte, 1);
    errno = before;
}

void handleAll(void (*handler)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : watched)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

class StopSignals::Platform final {
public:
    explicit Platform(StopSignals &owner)
    {
        if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        m_notifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, &owner, [this, &owner] {
            char bytes[64];
            while (::read(m_ends[0], bytes, sizeof bytes) > 0) {
            }
            emit owner.stopRequested();
        });
        writingEnd = m_ends[1];
        handleAll(onSignal);
    }

    ~Platform()
    {
        handleAll(SIG_DFL);
        writingEnd = -1;
        m_notifier.reset();
        for (const int end : m_ends) {
            if (end >= 0)
                ::close(end);
        }
    }

private:
    int m_ends[2]{-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

StopSignals::StopSignals(QObject *parent)
    : QObject(parent)
    , m_platform(std::make_unique<Platform>(*this))
{
}

StopSignals::~StopSignals() = default;
