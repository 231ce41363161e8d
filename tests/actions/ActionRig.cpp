#include "ActionRig.h"

#include "play/OwnEngine.h"
#include "play/TestClips.h"
#include "support/Eventually.h"
#include "support/TestLog.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "dialogs/NormalMessageBox.h"
#include "keys/AppEventFilter.h"
#include "keys/KeyMapTables.h"
#include "menus/NormalAction.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/QPlayer.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QPointer>

namespace {

constexpr int kLookMs = 5;
constexpr int kDecimals = 3;

QString shown(const MpvValue &value)
{
    if (std::holds_alternative<bool>(value.data()))
        return value.flag() ? QStringLiteral("yes") : QStringLiteral("no");
    if (std::holds_alternative<std::int64_t>(value.data()))
        return QString::number(value.integer());
    if (std::holds_alternative<double>(value.data()))
        return QString::number(value.number(), 'f', kDecimals);
    if (std::holds_alternative<MpvMap>(value.data())) {
        // A filter: its name and its arguments.
        QStringList parts(QString::fromStdString(value.at("name").text()));
        for (const auto &argument : value.at("params").map())
            parts << QString::fromStdString(argument.second.text());
        return parts.join(QLatin1Char(':'));
    }
    if (std::holds_alternative<MpvList>(value.data())) {
        QStringList parts;
        for (const MpvValue &part : value.list())
            parts << shown(part);
        return parts.join(QLatin1Char(','));
    }
    return value.isNone() ? QStringLiteral("none") : QString::fromStdString(value.text());
}

// In the loop of an application, where a menu that has closed outlives the dialog that it has opened.
void runInLoop(const std::function<void()> &action)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        action();
        loop.quit();
    });
    loop.exec();
}

bool waitFor(const std::function<bool()> &isTrue)
{
    return QTest::qWaitFor(isTrue, Eventually::WaitMs);
}

} // namespace

ActionRig::ActionRig()
{
    // Windows of tests are no player that others on the session's bus should find.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path(QStringLiteral("no-bus")).toLocal8Bit());
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        qputenv("ORBIX_VO", "null");
    qputenv("ORBIX_AO", "null");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    settings().remove(QString()); // all keys
    settings().setLanguage(QStringLiteral("ENU"));
    QPlayer::setLoaderFactory([] { return std::make_unique<OwnEngine>(); });
    m_answerTimer.setInterval(kLookMs);
    QObject::connect(&m_answerTimer, &QTimer::timeout, &m_answerTimer, [this] {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal == nullptr || !modal->isVisible())
            return;
        auto *note = qobject_cast<NormalMessageBox *>(modal);
        if (!m_answer && note != nullptr) {
            for (const QLabel *label : note->findChildren<QLabel *>())
                ADD_FAILURE() << "nobody expects: " << label->text().toStdString();
            for (const QString &line : TestLog::infoLines().mid(qMax(0, TestLog::infoLines().size() - 8)))
                ADD_FAILURE() << line.toStdString();
            note->close();
        }
        if (!m_answer)
            return;
        // It may turn an event loop of its own.
        const Answer answer = std::exchange(m_answer, nullptr);
        if (!answer(*modal))
            m_answer = answer;
    });
    m_answerTimer.start();
    open();
}

ActionRig::~ActionRig()
{
    close();
}

void ActionRig::open()
{
    // A window that has gone has ended the application; a loop that has run to its end takes that back.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    // The sound is set up before the first source and not beside it.
    const QString device = QLatin1String(SettingsKeys::PC_DefaultAudioDeviceName);
    if (!settings().contains(device))
        settings().setValue(device, QStringLiteral("Autoselect device"));
    settings().setValue(QLatin1String(SettingsKeys::PC_AudioAutomatic), false);
    m_window = std::make_unique<NormalMainWindow>(nullptr, true);
    auto *filter = AppEventFilter::instance();
    filter->setIsPcMode(true);
    filter->setKeyEnabled(true);
    filter->setMouseMoveEnabled(true);
    filter->SLOT_PcUpdateKeyMap();
    filter->setMainWindow(m_window.get(), [this](int steps) { m_window->slot_changeVolume(steps); });
    qApp->installEventFilter(filter);
}

void ActionRig::close()
{
    m_answer = nullptr;
    m_window->close();
    m_window.reset();
    QObject::disconnect(m_toldMute);
    qApp->removeEventFilter(AppEventFilter::instance());
    QPlayer::releaseInstance();
}

void ActionRig::restart()
{
    close();
    open();
}

QPlayer &ActionRig::player() const
{
    return *QPlayer::instance();
}

bool ActionRig::play(const QString &source)
{
    const QString file = QFileInfo(source).isAbsolute() || source.size() == 1
                             ? source
                             : QString::fromStdString(TestClips::path(source.toStdString()));
    const NormalPlayControl *control = m_window->playControl();
    if (control->hasSource() && control->currentPath() == file && player().isPlaying())
        return true;
    if (!waitFor([control] { return !control->isOpening(); }))
        return false;
    if (!m_toldMute)
        m_toldMute = QObject::connect(&player(), &QPlayer::sig_muteChanged, &m_answerTimer,
                                      [this](bool isMuted) { m_isToldMuted = isMuted; });
    m_window->slot_playSource(file);
    return waitFor([&] {
        return control->currentPath() == file && !control->isOpening() && player().isPlaying()
               && QPlayer::isMoving(player().status()) && player().totalTime() > 0;
    });
}

void ActionRig::stop()
{
    m_window->playControl()->slot_stopLater();
    (void)waitFor([this] { return !m_window->isPlayViewShown() && !player().isPlaying(); });
}

QString ActionRig::property(const char *name) const
{
    if (!player().isPlaying())
        return QStringLiteral("none");
    return shown(OwnEngine::tool()->readProperty(name));
}

int ActionRig::engineLines(const QString &text) const
{
    const QString chosen = settings().value(QLatin1String(SettingsKeys::PC_LogPath)).toString();
    QFile log((chosen.isEmpty() ? ApplicationInfoManager::instance()->logFolder() : chosen)
              + QStringLiteral("/Orbix.log"));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()).count(text) : 0;
}

bool ActionRig::reaches(const Read &read, const QString &wanted)
{
    return waitFor([&] { return read(*this) == wanted; });
}

bool ActionRig::reaches(const char *name, const QString &wanted)
{
    return waitFor([&] { return property(name) == wanted; });
}

bool ActionRig::leaves(const Read &read, const QString &unwanted)
{
    return waitFor([&] { return read(*this) != unwanted; });
}

// ---- menu and keys

QMenu *ActionRig::openMenu()
{
    const QPoint middle = m_window->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, m_window->mapToGlobal(middle));
    QCoreApplication::sendEvent(m_window.get(), &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    return menu != nullptr && waitFor([menu] { return menu->isVisible(); }) ? menu : nullptr;
}

void ActionRig::closeMenu(QMenu *menu)
{
    const QPointer<QMenu> guard(menu);
    if (guard)
        guard->close();
    (void)waitFor([&guard] { return guard.isNull() && QApplication::activePopupWidget() == nullptr; });
}

NormalAction *ActionRig::entry(QMenu &menu, const QString &key)
{
    const auto actions = menu.findChildren<NormalAction *>();
    for (NormalAction *action : actions) {
        if (action->key() == key)
            return action;
    }
    return nullptr;
}

bool ActionRig::choose(const QString &key)
{
    QMenu *top = openMenu();
    NormalAction *action = top != nullptr ? entry(*top, key) : nullptr;
    if (action == nullptr) {
        closeMenu(top);
        return false;
    }
    QList<QMenu *> way;
    for (auto *menu = qobject_cast<QMenu *>(action->parent()); menu != nullptr;
         menu = qobject_cast<QMenu *>(menu->parent()))
        way.prepend(menu);
    bool isOpen = true;
    for (int level = 1; level < way.size() && isOpen; ++level) {
        QMenu *child = way.at(level);
        isOpen = child->menuAction()->isEnabled();
        if (isOpen) {
            way.at(level - 1)->setActiveAction(child->menuAction());
            isOpen = waitFor([child] { return child->isVisible(); });
        }
    }
    const bool isTaken = isOpen && action->isEnabled();
    const QPointer<QMenu> guard(top);
    if (isTaken) {
        way.last()->setActiveAction(action);
        runInLoop([&way] { QTest::keyClick(way.last(), Qt::Key_Return); });
    }
    closeMenu(guard);
    return isTaken;
}

bool ActionRig::isOffered(const QString &key)
{
    QMenu *menu = openMenu();
    const NormalAction *action = menu != nullptr ? entry(*menu, key) : nullptr;
    const bool isOffered = action != nullptr && action->isEnabled();
    closeMenu(menu);
    return isOffered;
}

bool ActionRig::isMarked(const QString &key)
{
    QMenu *menu = openMenu();
    const NormalAction *action = menu != nullptr ? entry(*menu, key) : nullptr;
    const bool isMarked = action != nullptr && action->isChecked();
    closeMenu(menu);
    return isMarked;
}

bool ActionRig::press(KeyOperateType operation)
{
    const KeyMap map =
        KeyMapTables::completed(CommonInfoManager::instance()->getPcKeyMap(), KeyMapTables::Mode::Pc);
    const int key = map.value(operation);
    if (key == 0)
        return false;
    pressKey(key);
    return true;
}

void ActionRig::pressKey(int key)
{
    const int modifiers = key & int(Qt::KeyboardModifierMask);
    runInLoop([&] {
        QTest::keyClick(m_window.get(), Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(modifiers));
    });
}

void ActionRig::closeDialogs()
{
    const auto dialogs = m_window->findChildren<NormalDialogFrame *>();
    for (const QPointer<NormalDialogFrame> dialog : dialogs) {
        if (dialog && dialog->isVisible())
            dialog->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
