#include "ProgramRun.h"

#include "ProgramPath.h"

#include <QColor>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemWatcher>
#include <QImage>
#include <QSettings>
#include <QTemporaryFile>
#include <QTimer>

#include <gtest/gtest.h>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr char kProduct[] = "Quorin Player 6";

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(10000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

ProgramHome::ProgramHome()
{
    for (const char *folder : {"data", "config", "cache", "tmp", "run", "Pictures"})
        QDir(path()).mkdir(QLatin1String(folder));
    QFile::setPermissions(filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Made ahead, so that the log's birth can be watched.
    QDir().mkpath(QFileInfo(logFile()).path());
    QFile log(logFile());
    EXPECT_TRUE(log.open(QIODevice::WriteOnly));
}

QString ProgramHome::logFile() const
{
    return filePath(QStringLiteral("Documents/%1/Log/player.log").arg(QLatin1String(kProduct)));
}

QString ProgramHome::configurationFile() const
{
    return filePath(QStringLiteral("data/%1/config.ini").arg(QLatin1String(kProduct)));
}

QProcessEnvironment ProgramHome::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", path());
    environment.insert("XDG_DATA_HOME", filePath("data"));
    environment.insert("XDG_CONFIG_HOME", filePath("config"));
    environment.insert("XDG_CACHE_HOME", filePath("cache"));
    environment.insert("XDG_RUNTIME_DIR", filePath("run"));
    environment.insert("TMPDIR", filePath("tmp"));
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("ORBIX_AO", "null");
    return environment;
}

QString ProgramHome::log() const
{
    QFile file(logFile());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool ProgramHome::waitForLog(const QString &text, int times, int timeoutMs) const
{
    QFileSystemWatcher watcher({logFile()});
    QEventLoop loop;
    const auto test = [&] {
        if (log().count(text) >= times)
            loop.exit(0);
    };
    QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &loop, test);
    QTimer::singleShot(0, &loop, test);
    QTimer::singleShot(timeoutMs, &loop, [&loop] { loop.exit(1); });
    return loop.exec() == 0;
}

QList<qint64> ProgramHome::processes() const
{
    QList<qint64> ids;
    const QByteArray mark = "HOME=" + path().toUtf8();
    const QStringList entries = QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        QFile file("/proc/" + entry + "/environ");
        if (entry.toLongLong() > 0 && file.open(QIODevice::ReadOnly)
            && file.readAll().split('\0').contains(mark))
            ids << entry.toLongLong();
    }
    return ids;
}

void ProgramHome::writeSetting(const QString &key, const QString &value) const
{
    QDir().mkpath(QFileInfo(configurationFile()).path());
    QSettings(configurationFile(), QSettings::IniFormat).setValue(key, value);
}

QString ProgramHome::readSetting(const QString &key) const
{
    return QSettings(configurationFile(), QSettings::IniFormat).value(key).toString();
}

ProgramRun::ProgramRun(const ProgramHome &home, const QStringList &arguments, const QString &program,
                       const QProcessEnvironment &extra)
{
    QProcessEnvironment environment = home.environment();
    environment.insert(extra);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program.isEmpty() ? QStringLiteral(QUORIN_PROGRAM) : program, arguments);
    EXPECT_TRUE(m_process.waitForStarted(20000)) << qPrintable(m_process.errorString());
}

ProgramRun::~ProgramRun()
{
    if (!isRunning())
        return;
    m_process.kill();
    m_process.waitForFinished(10000);
}

QStringList ProgramRun::mappedFiles() const
{
    QFile file(QStringLiteral("/proc/%1/maps").arg(id()));
    QStringList files;
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
        for (const QString &line : lines) {
            const int from = line.indexOf('/');
            if (from > 0)
                files << line.mid(from);
        }
    }
    files.removeDuplicates();
    return files;
}

QString ProgramRun::descriptor(int number) const
{
    char target[4096];
    const QByteArray link = QStringLiteral("/proc/%1/fd/%2").arg(id()).arg(number).toUtf8();
    const ssize_t length = ::readlink(link.constData(), target, sizeof target);
    return length > 0 ? QString::fromLocal8Bit(target, int(length)) : QString();
}

int ProgramRun::waitForEnd(int timeoutMs)
{
    if (isRunning() && !m_process.waitForFinished(timeoutMs))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

namespace Desktop {

namespace {

QStringList windowsOf(qint64 processId, const QString &title)
{
    return output("xdotool", {"search", "--onlyvisible", "--all", "--pid", QString::number(processId),
                              "--name", "^" + title + "$"})
        .split('\n', Qt::SkipEmptyParts);
}

} // namespace

qulonglong waitForWindow(qint64 processId, const QString &title, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!deadline.hasExpired()) {
        const QStringList windows = windowsOf(processId, title);
        if (!windows.isEmpty())
            return windows.last().toULongLong();
    }
    return 0;
}

int visibleWindows(qint64 processId, const QString &title)
{
    return windowsOf(processId, title).size();
}

QString windowClass(qulonglong window)
{
    // WM_CLASS(STRING) = "instance", "class"
    return output("xprop", {"-id", QString::number(window), "WM_CLASS"}).section('"', 3, 3);
}

void closeWindow(qulonglong window)
{
    output("wmctrl", {"-i", "-c", "0x" + QString::number(window, 16)});
}

void sendKey(qulonglong window, const QString &key)
{
    output("xdotool", {"windowactivate", "--sync", QString::number(window), "key", key});
}

qulonglong activeWindow()
{
    return output("xdotool", {"getactivewindow"}).toULongLong();
}

QSize screenSize()
{
    const QStringList numbers = output("xdotool", {"getdisplaygeometry"}).split(' ');
    return {numbers.value(0).toInt(), numbers.value(1).toInt()};
}

bool saveScreen(const QString &path)
{
    QProcess process;
    process.start("import", {"-window", "root", path});
    return process.waitForFinished(20000) && process.exitCode() == 0;
}

QRgb middleColor()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("screen.png");
    if (!saveScreen(path))
        return 0;
    const QImage screen(path);
    constexpr int side = 64;
    const QImage middle = screen.copy((screen.width() - side) / 2, (screen.height() - side) / 2, side, side);
    qint64 red = 0;
    qint64 green = 0;
    qint64 blue = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QRgb pixel = middle.pixel(x, y);
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
        }
    }
    constexpr qint64 count = qint64(side) * side;
    return qRgb(int(red / count), int(green / count), int(blue / count));
}

bool waitForMiddleColor(QRgb color, int tolerance, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    QRgb seen = 0;
    while (!deadline.hasExpired()) {
        seen = middleColor();
        if (qAbs(qRed(seen) - qRed(color)) <= tolerance && qAbs(qGreen(seen) - qGreen(color)) <= tolerance
            && qAbs(qBlue(seen) - qBlue(color)) <= tolerance)
            return true;
    }
    ADD_FAILURE() << "the middle of the screen shows " << qPrintable(QColor(seen).name()) << " and not "
                  << qPrintable(QColor(color).name());
    return false;
}

} // namespace Desktop

namespace Clips {

namespace {

// Made once for all runs: the folder tells what is in a clip, its name is what a test wants it to be.
QString pathOf(const QString &name, QRgb color, int seconds, const QString &kind)
{
    const QDir cache(QStringLiteral(QUORIN_TEST_CACHE));
    const QString folder =
        cache.filePath(QStringLiteral("clips/%1-%2-%3").arg(kind, QString::number(color, 16)).arg(seconds));
    QDir().mkpath(folder);
    return folder + '/' + name;
}

QStringList inputs(QRgb color, int seconds, int framesPerSecond)
{
    const QString picture = QStringLiteral("color=c=0x%1:s=640x360:r=%2:d=%3")
                                .arg(QString::number(color & 0xffffffU, 16).rightJustified(6, '0'))
                                .arg(framesPerSecond)
                                .arg(seconds);
    const QString tone = QStringLiteral("sine=frequency=440:duration=%1").arg(seconds);
    return {"-v", "error", "-y", "-f", "lavfi", "-i", picture, "-f", "lavfi", "-i", tone};
}

// Two tests may make the same clip at once: each writes a file of its own, and the last one's stays.
QString encoded(const QString &path, const QStringList &arguments)
{
    const QTemporaryDir folder;
    const QString made = QFileInfo(path).path() + '/' + QFileInfo(folder.path()).fileName() + ".mkv";
    QProcess process;
    process.start("ffmpeg", arguments
                                + QStringList{"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt",
                                              "yuv420p", "-c:a", "aac", made});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return ::rename(QFile::encodeName(made).constData(), QFile::encodeName(path).constData()) == 0
               ? path
               : QString();
}

} // namespace

QString ofColor(const QString &name, QRgb color, int seconds)
{
    const QString path = pathOf(name, color, seconds, "plain");
    return QFile::exists(path) ? path : encoded(path, inputs(color, seconds, 25));
}

QString withChapters(const QString &name, QRgb color, const QList<int> &starts, int seconds)
{
    QStringList marks;
    for (const int start : starts)
        marks << QString::number(start);
    const QString path = pathOf(name, color, seconds, "chapters-" + marks.join('-'));
    if (QFile::exists(path))
        return path;
    constexpr int FramesPerSecond = 10;
    QTemporaryFile list;
    if (!list.open())
        return {};
    list.write(";FFMETADATA1\n");
    for (int i = 0; i < starts.size(); ++i) {
        const int end = i + 1 < starts.size() ? starts.at(i + 1) : seconds;
        list.write(QStringLiteral("[CHAPTER]\nTIMEBASE=1/1\nSTART=%1\nEND=%2\ntitle=%3\n")
                       .arg(starts.at(i))
                       .arg(end)
                       .arg(i + 1)
                       .toUtf8());
    }
    list.close();
    return encoded(path, inputs(color, seconds, FramesPerSecond)
                             + QStringList{"-f", "ffmetadata", "-i", list.fileName(), "-map_metadata", "2",
                                           "-map", "0", "-map", "1", "-g", QString::number(FramesPerSecond)});
}

} // namespace Clips
