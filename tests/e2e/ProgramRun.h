// One run of the real program in a home of its own. Copies that share a ProgramHome know each other; others
// do not.
#pragma once

#include <QProcess>
#include <QRgb>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Home, data, temp and runtime folders that nobody else has.
class ProgramHome final {
public:
    ProgramHome();

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString logFile() const;
    [[nodiscard]] QString configurationFile() const;
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QProcessEnvironment environment() const;

    // Text of the log so far.
    [[nodiscard]] QString log() const;
    // Waits until the log holds the text that often; woken by the file system.
    [[nodiscard]] bool waitForLog(const QString &text, int times = 1, int timeoutMs = 20000) const;
    // Ids of the processes that were started in this home and still live.
    [[nodiscard]] QList<qint64> processes() const;
    // Sets one key of the settings file before a start.
    void writeSetting(const QString &key, const QString &value) const;
    [[nodiscard]] QString readSetting(const QString &key) const;

private:
    QTemporaryDir m_folder;
};

class ProgramRun final {
public:
    explicit ProgramRun(const ProgramHome &home, const QStringList &arguments = {},
                        const QString &program = {}, const QProcessEnvironment &extra = {});
    ~ProgramRun();

    [[nodiscard]] bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    [[nodiscard]] qint64 id() const { return m_process.processId(); }
    // The files that its memory shows, programs and libraries among them.
    [[nodiscard]] QStringList mappedFiles() const;
    // What one of its descriptors stands for.
    [[nodiscard]] QString descriptor(int number) const;
    // -1 when it did not end in time or crashed.
    [[nodiscard]] int waitForEnd(int timeoutMs = 20000);

private:
    QProcess m_process;
};

namespace Desktop {

// Waits for a visible window of the process with exactly this title; 0 when none came.
[[nodiscard]] qulonglong waitForWindow(qint64 processId, const QString &title, int timeoutMs = 20000);
[[nodiscard]] int visibleWindows(qint64 processId, const QString &title);
// The class by which a desktop finds the window's program.
[[nodiscard]] QString windowClass(qulonglong window);
// Asks the window manager to close it, as its user would.
void closeWindow(qulonglong window);
void sendKey(qulonglong window, const QString &key);
// Mean colour around the middle of the screen.
[[nodiscard]] QRgb middleColor();
// Waits until the middle of the screen shows a colour, each channel within the tolerance.
[[nodiscard]] bool waitForMiddleColor(QRgb color, int tolerance, int timeoutMs = 20000);
// The window that has the keyboard.
[[nodiscard]] qulonglong activeWindow();
[[nodiscard]] QSize screenSize();
// A picture of the whole screen.
[[nodiscard]] bool saveScreen(const QString &path);

} // namespace Desktop

namespace Clips {

// A clip of one colour with a tone, made once a program; empty when it can't be made.
[[nodiscard]] QString ofColor(const QString &name, QRgb color, int seconds);
// The same with chapters that begin at these seconds, and a keyframe a second.
[[nodiscard]] QString withChapters(const QString &name, QRgb color, const QList<int> &starts, int seconds);

} // namespace Clips
