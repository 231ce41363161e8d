// Turns the system's request to end into a Qt signal on the GUI thread, so that the program closes its window
// in order instead of being cut off. One object at a time.
#pragma once

#include <QObject>

#include <memory>

class TerminationSignal final : public QObject {
    Q_OBJECT
public:
    explicit TerminationSignal(QObject *parent = nullptr);
    ~TerminationSignal() override;

    // A request has come, perhaps before there was an event loop to tell it in.
    [[nodiscard]] bool isRequested() const { return m_requested; }

signals:
    void requested();

private:
    class Source;

    std::unique_ptr<Source> m_source;
    bool m_requested{false};
};
