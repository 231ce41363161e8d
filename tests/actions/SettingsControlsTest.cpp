// Every control of the settings over the real engine: set by hand, stored, read again, and seen where it
// acts.
#include "SettingProofs.h"
#include "SettingsHand.h"

#include "play/TestClips.h"
#include "support/Eventually.h"
#include "support/TestLog.h"

#include "core/LanguageManager.h"
#include "core/SettingsKeys.h"
#include "dialogs/DialogSlider.h"
#include "dialogs/NormalColorAdjustDlg.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/QPlayer.h"
#include "settings/NormalSettingPage.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QPushButton>
#include <QTimer>

#include <map>
#include <set>

namespace {

using When = SettingProof::When;

class SettingsControls : public testing::Test {
protected:
    SettingsControls()
    {
        SettingProofs::makeSoundDevices(m_machine.path());
        m_rig = std::make_unique<ActionRig>();
        for (const char *name : {"log", "texts", "shots"})
            QDir().mkpath(m_rig->path(QLatin1String(name)));
    }

    ~SettingsControls() override
    {
        m_rig.reset();
        qunsetenv("ALSA_CONFIG_PATH");
    }

    // Opens the settings, works in them and leaves, with "OK" where nothing else is said.
    void edit(const std::function<void(NormalSettingPage &)> &work,
              QPushButton *(NormalSettingPage::*leave)() const = &NormalSettingPage::okButton)
    {
        NormalSettingPage *dialog = nullptr;
        // A value that is refused keeps it open.
        QTimer giveUp;
        giveUp.setSingleShot(true);
        QObject::connect(&giveUp, &QTimer::timeout, &giveUp, [&dialog] {
            ADD_FAILURE() << "the settings stay open";
            dialog->cancelButton()->click();
        });
        m_rig->answer([&](QWidget &window) {
            dialog = qobject_cast<NormalSettingPage *>(&window);
            if (dialog == nullptr)
                return false;
            work(*dialog);
            giveUp.start(Eventually::WaitMs);
            (dialog->*leave)()->click();
            return true;
        });
        m_rig->window().slot_settingClicked();
        EXPECT_NE(dialog, nullptr);
    }

    // A source that stands still: short clips would end.
    void playAndPause(const char *clip)
    {
        ASSERT_TRUE(m_rig->play(clip)) << clip;
        if (!m_rig->player().isPaused())
            m_rig->player().togglePause();
        ASSERT_TRUE(m_rig->reaches("pause", "yes"));
    }

    void expectSeen(const SettingPass &pass, const std::function<bool(const SettingProof &)> &isMeant)
    {
        for (const SettingProof &proof : pass.proofs) {
            if (!proof.read || !isMeant(proof))
                continue;
            EXPECT_TRUE(m_rig->reaches(proof.read, proof.wanted))
                << proof.key << " is seen as " << proof.read(*m_rig).toStdString() << " instead of "
                << proof.wanted.toStdString();
        }
    }

    // The file as another program would read it; of two values of one control the later counts.
    static void expectStored(const SettingPass &pass)
    {
        ActionRig::settings().sync();
        const SettingsManager file(ActionRig::settings().fileName());
        std::map<std::string, QString> wanted;
        for (const SettingProof &proof : pass.proofs)
            wanted[proof.key] = (proof.stored.isValid() ? proof.stored : proof.value).toString();
        for (const auto &[key, text] : wanted) {
            if (!isStoredAlone(key))
                continue;
            EXPECT_EQ(file.value(QString::fromStdString(key)).toString().toStdString(), text.toStdString())
                << key;
        }
    }

    // Those that are not are told by what they choose between.
    static bool isStoredAlone(const std::string &key)
    {
        return key != SettingTables::OutputMode && key != SettingTables::ProxyChoice;
    }

    void expectShown(const SettingPass &pass)
    {
        std::map<std::string, QVariant> wanted;
        for (const SettingProof &proof : pass.proofs)
            wanted[proof.key] = proof.value;
        edit(
            [&wanted](NormalSettingPage &dialog) {
                for (const auto &[key, value] : wanted)
                    EXPECT_TRUE(SettingsHand::shown(dialog, key.c_str()) == value) << key;
            },
            &NormalSettingPage::cancelButton);
    }

    // Something that is told after everything that was asked for before.
    void fence()
    {
        const QString next = m_rig->property("mute") == QLatin1String("yes") ? "no" : "yes";
        ASSERT_TRUE(m_rig->press(KeyOperate_Mute));
        ASSERT_TRUE(m_rig->reaches("mute", next));
    }

    QStringList shots() const { return QDir(m_rig->path("shots")).entryList(QDir::Files); }

    QTemporaryDir m_machine;
    std::unique_ptr<ActionRig> m_rig;
};

} // namespace

TEST_F(SettingsControls, AreSetStoredReadAgainAndSeenInTheEngine)
{
    TestClips::write(m_rig->path("texts/tracks.en.srt").toStdString(),
                     "1\n00:00:00,000 --> 00:00:09,500\nbeside\n");
    ActionRig::settings().setValue(QLatin1String(SettingsKeys::PC_3DSourceType), 1);
    for (const SettingPass &pass : SettingProofs::passes(*m_rig)) {
        SCOPED_TRACE(pass.name);
        ASSERT_NO_FATAL_FAILURE(playAndPause(pass.clip));
        for (const SettingProof &proof : pass.proofs) {
            if (proof.read) {
                EXPECT_TRUE(m_rig->leaves(proof.read, proof.wanted)) << proof.key << " before";
            }
        }
        edit([&pass](NormalSettingPage &dialog) {
            for (const SettingProof &proof : pass.proofs)
                EXPECT_TRUE(SettingsHand::set(dialog, proof.key, proof.value)) << proof.key;
        });
        expectStored(pass);
        expectSeen(pass, [](const SettingProof &proof) { return proof.when == When::AtOnce; });
        m_rig->stop();
        ASSERT_NO_FATAL_FAILURE(playAndPause(pass.next != nullptr ? pass.next : pass.clip));
        expectSeen(pass, [](const SettingProof &) { return true; });
        expectShown(pass);
        m_rig->stop();
    }
    LanguageManager::instance()->load(QStringLiteral("ENU"));
}

TEST_F(SettingsControls, EachHasItsProof)
{
    std::set<std::string> proven;
    for (const SettingPass &pass : SettingProofs::passes(*m_rig)) {
        for (const SettingProof &proof : pass.proofs)
            proven.insert(proof.key);
    }
    for (const char *key : SettingProofs::withoutAMeans())
        proven.insert(key);
    for (int page = 0; page < SettingsPageCount; ++page) {
        for (const SettingRow &row :
             SettingTables::rows(SettingsPageId(page), SettingsFacts::ofThisMachine())) {
            if (row.control != SettingControl::None) {
                EXPECT_EQ(proven.count(row.key), 1U) << row.key;
            }
        }
    }
}

TEST_F(SettingsControls, DefaultsComeBackWithOkAndNothingChangesWithCancel)
{
    const SettingPass pass = SettingProofs::passes(*m_rig).front();
    ASSERT_NO_FATAL_FAILURE(playAndPause(pass.clip));
    const auto isAtOnce = [](const SettingProof &proof) { return proof.when == When::AtOnce; };
    const auto setAll = [&pass](NormalSettingPage &dialog) {
        for (const SettingProof &proof : pass.proofs)
            EXPECT_TRUE(SettingsHand::set(dialog, proof.key, proof.value)) << proof.key;
    };
    edit(setAll, &NormalSettingPage::cancelButton);
    ASSERT_NO_FATAL_FAILURE(fence());
    for (const SettingProof &proof : pass.proofs) {
        if (proof.read) {
            EXPECT_NE(proof.read(*m_rig).toStdString(), proof.wanted.toStdString()) << proof.key;
        }
    }
    edit(setAll);
    expectSeen(pass, isAtOnce);
    edit([](NormalSettingPage &dialog) { dialog.defaultButton()->click(); });
    for (const SettingProof &proof : pass.proofs) {
        if (proof.read && isAtOnce(proof)) {
            EXPECT_TRUE(m_rig->leaves(proof.read, proof.wanted)) << proof.key;
        }
    }
    LanguageManager::instance()->load(QStringLiteral("ENU"));
}

TEST_F(SettingsControls, AMinimizedWindowPausesWhatPlaysAndAloneThat)
{
    // The platform reports each change once more, later.
    const auto show = [this](void (QWidget::*how)()) {
        (m_rig->window().*how)();
        QGuiApplication::sync();
    };
    edit([](NormalSettingPage &dialog) {
        EXPECT_TRUE(SettingsHand::set(dialog, SettingsKeys::PC_PausePlay, true));
    });
    ASSERT_TRUE(m_rig->play("film.mkv"));
    show(&QWidget::showMinimized);
    EXPECT_TRUE(m_rig->reaches("pause", "yes"));
    ASSERT_EVENTUALLY(m_rig->player().isPaused());
    show(&QWidget::showNormal);
    EXPECT_TRUE(m_rig->reaches("pause", "no"));
    // What the user has paused stays so.
    ASSERT_TRUE(m_rig->press(KeyOperate_PlayPause));
    ASSERT_TRUE(m_rig->reaches("pause", "yes"));
    ASSERT_EVENTUALLY(m_rig->player().isPaused());
    show(&QWidget::showMinimized);
    show(&QWidget::showNormal);
    ASSERT_NO_FATAL_FAILURE(fence());
    EXPECT_EQ(m_rig->property("pause"), "yes");
    ASSERT_TRUE(m_rig->press(KeyOperate_PlayPause));
    ASSERT_TRUE(m_rig->reaches("pause", "no"));

    edit([](NormalSettingPage &dialog) {
        EXPECT_TRUE(SettingsHand::set(dialog, SettingsKeys::PC_PausePlay, false));
    });
    show(&QWidget::showMinimized);
    ASSERT_NO_FATAL_FAILURE(fence());
    EXPECT_EQ(m_rig->property("pause"), "no");
}

TEST_F(SettingsControls, ThePositionIsRememberedWhereItIsAskedFor)
{
    const auto place = [](ActionRig &rig) {
        const double seconds = rig.property("time-pos").toDouble();
        return QString(seconds > 74 && seconds < 90 ? "there" : "elsewhere");
    };
    const QString film = QString::fromStdString(TestClips::path("film.mkv"));
    for (const bool isRemembered : {true, false}) {
        edit([isRemembered](NormalSettingPage &dialog) {
            EXPECT_TRUE(SettingsHand::set(dialog, SettingsKeys::PC_RememberPosition, isRemembered));
        });
        ASSERT_TRUE(m_rig->play("film.mkv"));
        m_rig->player().seek(75);
        ASSERT_TRUE(m_rig->reaches(place, "there"));
        ActionRig::settings().setLastPosition(film, 0);
        m_rig->stop();
        ASSERT_EVENTUALLY(ActionRig::settings().lastPosition(film) >= 74);
        ASSERT_TRUE(m_rig->play("film.mkv"));
        EXPECT_TRUE(m_rig->reaches(place, isRemembered ? "there" : "elsewhere"));
        EXPECT_EQ(m_rig->window().playControl()->resumeSeconds() > 0, isRemembered);
        m_rig->stop();
    }
}

TEST_F(SettingsControls, SnapshotsAreOfTheChosenKindAndPlace)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    const struct {
        const char *type;
        bool toClipboard;
    } rows[] = {{".JPG", true}, {".BMP", false}, {".PNG", false}};
    ASSERT_TRUE(m_rig->play("film.mkv"));
    int count = 0;
    for (const auto &row : rows) {
        edit([&](NormalSettingPage &dialog) {
            const auto set = [&dialog](const char *key, const QVariant &value) {
                EXPECT_TRUE(SettingsHand::set(dialog, key, value)) << key;
            };
            set(SettingsKeys::PC_SnapShotPath, m_rig->path("shots"));
            set(SettingsKeys::PC_SnapShotType, row.type);
            set(SettingsKeys::PC_SaveToDipboard, row.toClipboard);
        });
        clipboard->setText(QStringLiteral("before"));
        ASSERT_TRUE(m_rig->press(KeyOperate_Snapshot));
        ++count;
        ASSERT_EVENTUALLY(TestLog::infoLines().filter("[Screenshot] saved:").size() == count);
        EXPECT_EQ(shots().size(), count);
        EXPECT_EQ(shots().filter(row.type, Qt::CaseInsensitive).size(), 1) << row.type;
        if (row.toClipboard) {
            ASSERT_EVENTUALLY(!clipboard->image().isNull());
        } else {
            EXPECT_EQ(clipboard->text(), "before") << row.type;
        }
    }
}

TEST_F(SettingsControls, AKeyThatIsGivenToAnOperationActsFromThenOn)
{
    edit([](NormalSettingPage &dialog) {
        EXPECT_TRUE(SettingsHand::setKey(dialog, KeyOperate_Mute, Qt::Key_F9));
    });
    ASSERT_TRUE(m_rig->play("film.mkv"));
    m_rig->pressKey(Qt::Key_M);
    m_rig->pressKey(Qt::Key_F9);
    EXPECT_TRUE(m_rig->reaches("mute", "yes"));
    m_rig->restart();
    ASSERT_TRUE(m_rig->play("film.mkv"));
    m_rig->pressKey(Qt::Key_M);
    m_rig->pressKey(Qt::Key_F9);
    EXPECT_TRUE(m_rig->reaches("mute", "no")) << "mute is kept over a restart";
}

TEST_F(SettingsControls, TheEnginesLogGoesToTheChosenFolderFromTheNextStartOn)
{
    const QString folder = m_rig->path("log");
    edit([&folder](NormalSettingPage &dialog) {
        EXPECT_TRUE(SettingsHand::set(dialog, SettingsKeys::PC_LogPath, folder));
    });
    EXPECT_FALSE(QFile::exists(folder + "/Orbix.log"));
    m_rig->restart();
    ASSERT_TRUE(m_rig->play("film.mkv"));
    EXPECT_GT(m_rig->engineLines("[Play] started"), 0);
    EXPECT_TRUE(QFile::exists(folder + "/Orbix.log"));
}

TEST_F(SettingsControls, ThePictureOfTheMenuAndItsDialogComesBackWithTheNextStart)
{
    ASSERT_TRUE(m_rig->play("film.mkv"));
    ASSERT_TRUE(m_rig->choose("deinterlaceOn"));
    ASSERT_TRUE(m_rig->choose("color Adjust"));
    auto *dialog = m_rig->window().findChild<NormalColorAdjustDlg *>();
    ASSERT_NE(dialog, nullptr);
    const struct {
        const char *property;
        int value;
        const char *wanted;
    } rows[] = {{"brightness", 70, "40"}, {"saturation", 40, "-20"}, {"contrast", 55, "10"}};
    for (int row = 0; row < 3; ++row) {
        dialog->slider(row)->setValue(rows[row].value);
        EXPECT_TRUE(m_rig->reaches(rows[row].property, rows[row].wanted)) << rows[row].property;
    }
    m_rig->closeDialogs();
    m_rig->restart();
    ASSERT_TRUE(m_rig->play("film.mkv"));
    for (const auto &row : rows)
        EXPECT_TRUE(m_rig->reaches(row.property, row.wanted)) << row.property;
    EXPECT_TRUE(m_rig->reaches("deinterlace", "yes"));
    EXPECT_TRUE(m_rig->isMarked("deinterlaceOn"));
}
