// Plays one copy of the player: takes part in the single instance link as the real program does, says on
// standard output what happens to it, and does what standard input tells it.
//
//   core_child start [ARGUMENTS...]    a copy started with these arguments
//   core_child busy [ARGUMENTS...]     the same, with nobody there for files until it is told "connect"
//   core_child segment KEY             holds nothing; clears what killed copies left behind
//   core_child paths                   the data folder before and after the application object exists
//   core_child readonly FILE           writes into a settings file as a user who may not
//   core_child wish                    sets a value and ends at once
#include "core/ApplicationInfoManager.h"
#include "core/CommunicationManager.h"
#include "core/SettingsManager.h"
#include "core/SingleApplication.h"
#include "core/SingleInstance.h"
#include "core/WaitBudget.h"

#include <QSocketNotifier>

#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include <grp.h>
#include <unistd.h>

namespace {

void say(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

void connectFiles(SingleApplication &app)
{
    QObject::connect(&app, &SingleApplication::signal_playOutFile, &app,
                     [](const QString &path) { say("play " + path); });
    QObject::connect(&app, &SingleApplication::signal_otherWantRunning, &app, [] { say("activate"); });
}

void obey(SingleApplication &app, const QString &command)
{
    CommunicationManager *hub = CommunicationManager::instance();
    if (command == "quit")
        QCoreApplication::quit();
    else if (command == "hang")
        pause();
    else if (command == "connect")
        connectFiles(app);
    else if (command.startsWith("message "))
        emit hub->SIG_sendMsgToUpdate(static_cast<SendMsgType>(command.mid(8).toInt()));
    else if (command.startsWith("picture "))
        emit hub->SIG_sendChangeBkImg(command.mid(8));
}

int startCopy(int argc, char **argv, bool isBusy)
{
    SingleApplication app(argc, argv);
    // Program and the arguments behind "start".
    QStringList arguments = app.arguments();
    arguments.removeAt(1);

    SingleInstance instance;
    switch (instance.start(app, arguments)) {
    case SingleInstance::Outcome::HandedOver:
        say("handed over");
        return SingleInstance::HandOverExitCode;
    case SingleInstance::Outcome::OtherCopySilent:
        say("other copy silent");
        return SingleInstance::HandOverExitCode;
    case SingleInstance::Outcome::First:
        break;
    }

    app.setOutsideSourceSink([] { say("outside"); });
    if (!isBusy)
        connectFiles(app);
    QObject::connect(CommunicationManager::instance(), &CommunicationManager::SIG_updateStatusIsChanged, &app,
                     [](UpdateStatus status) { say(QString("status %1").arg(static_cast<int>(status))); });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&app, &input] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            input.setEnabled(false);
            QCoreApplication::quit();
            return;
        }
        obey(app, QString::fromStdString(line));
    });
    say(app.isListening() ? "first" : "first without server");
    return app.exec();
}

int showPaths(int argc, char **argv)
{
    say(ApplicationInfoManager::instance()->dataFolder());
    QCoreApplication app(argc, argv);
    say(ApplicationInfoManager::instance()->dataFolder());
    return 0;
}

int writeReadOnly(int argc, char **argv)
{
    // The super-user may write everything.
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0))
        return 2;
    QCoreApplication app(argc, argv);
    SettingsManager store(QString::fromLocal8Bit(argv[2]));
    say(store.value("PC_Language").toString());
    store.setValue("PC_Language", "JPN");
    store.setLastPosition("/films/a.mkv", 12);
    store.sync();
    say("survived");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const char *what = argc > 1 ? argv[1] : "";
    if (!std::strcmp(what, "start"))
        return startCopy(argc, argv, false);
    if (!std::strcmp(what, "busy"))
        return startCopy(argc, argv, true);
    if (!std::strcmp(what, "segment")) {
        SingleInstance instance;
        WaitBudget budget(SingleApplication::StartWaitMs);
        return instance.acquire(budget) ? 0 : 1;
    }
    if (!std::strcmp(what, "paths"))
        return showPaths(argc, argv);
    if (!std::strcmp(what, "readonly") && argc > 2)
        return writeReadOnly(argc, argv);
    if (!std::strcmp(what, "wish")) {
        SettingsManager::instance()->setValue("PC_Language", "FRA");
        return 0;
    }
    std::fprintf(stderr, "unknown task: %s\n", what);
    return 2;
}
