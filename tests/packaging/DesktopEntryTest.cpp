#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "installed/InstalledTree.h"
#include "platform/MediaSession.h"
#include "platform/MprisAdaptors_linux.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QMimeDatabase>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class DesktopEntryTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_tree.isValid()) << qPrintable(m_tree.message()); }

    QString entryFile() const
    {
        return m_tree.filePath("share/applications/" + ApplicationInfoManager::desktopName() + ".desktop");
    }

    // The value of a key in a group of the entry, or of another file like it; null when it is not there.
    QString value(const QString &key, const QString &group = QStringLiteral("Desktop Entry"),
                  const QString &path = {}) const
    {
        QFile file(path.isEmpty() ? entryFile() : path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << qPrintable(file.fileName());
        QString current;
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.startsWith('['))
                current = line.mid(1, line.size() - 2);
            else if (current == group && line.section('=', 0, 0) == key)
                return line.section('=', 1);
        }
        return {};
    }

    QStringList types() const { return value("MimeType").split(';', Qt::SkipEmptyParts); }

    const InstalledTree m_tree{InstalledTree::Component::Desktop};
};

// The exit status, with all that was said added to the failure that it causes.
int run(const QString &program, const QStringList &arguments, QString *output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(30000);
    *output = ended ? QString::fromUtf8(process.readAll()) : process.errorString();
    return ended ? process.exitCode() : -1;
}

TEST_F(DesktopEntryTest, TheDesktopsOwnCheckFindsNothing)
{
    QString output;
    EXPECT_EQ(run("desktop-file-validate", {entryFile()}, &output), 0);
    EXPECT_EQ(output, QString());
}

TEST_F(DesktopEntryTest, TheStoresOwnCheckFindsNothing)
{
    const QStringList found = QDir(m_tree.filePath("share/metainfo")).entryList({"*.metainfo.xml"});
    ASSERT_EQ(found.size(), 1);
    QString output;
    EXPECT_EQ(run("appstreamcli",
                  {"validate", "--no-net", m_tree.filePath("share/metainfo/" + found.first())}, &output),
              0)
        << qPrintable(output);
}

TEST_F(DesktopEntryTest, EntryIconWindowsAndSessionHaveOneName)
{
    const QString name = ApplicationInfoManager::desktopName();
    EXPECT_EQ(value("Icon"), name);
    EXPECT_EQ(value("StartupWMClass"), name);
    QStringList actions = value("Actions").split(';', Qt::SkipEmptyParts);
    EXPECT_EQ(actions.takeFirst(), "PlayWithQuorinSix");
    EXPECT_FALSE(actions.isEmpty());
    const QMetaObject &player = MprisPlayerAdaptor::staticMetaObject;
    for (const QString &action : actions) {
        const QString command = value("Exec", "Desktop Action " + action);
        EXPECT_TRUE(command.contains("--dest=org.mpris.MediaPlayer2." + name + ' ')) << qPrintable(action);
        // What is called exists.
        const QByteArray method = command.section('.', -1).toUtf8() + "()";
        EXPECT_GE(player.indexOfMethod(method.constData()), 0) << method.constData();
    }
}

TEST_F(DesktopEntryTest, ItStartsTheInstalledCommand)
{
    EXPECT_EQ(value("Exec"), "quorin-player %f");
    EXPECT_EQ(value("TryExec"), QFileInfo(m_tree.command()).fileName());
}

TEST_F(DesktopEntryTest, TheVerbIsAnActionHereAndInTheMenusOfFilesAndFolders)
{
    const QString group = "Desktop Action PlayWithQuorinSix";
    EXPECT_EQ(value("Name", group), "Play with Quorin Player 6");
    EXPECT_EQ(value("Exec", group), value("Exec"));
    const QString menu =
        m_tree.filePath("share/kio/servicemenus/" + ApplicationInfoManager::desktopName() + ".desktop");
    EXPECT_EQ(value("Name", group, menu), "Play with Quorin Player 6");
    EXPECT_EQ(value("Exec", group, menu), value("Exec"));
    EXPECT_EQ(value("Actions", "Desktop Entry", menu), "PlayWithQuorinSix;");
    QStringList wanted = types();
    wanted.erase(std::remove_if(wanted.begin(), wanted.end(),
                                [](const QString &type) { return type.startsWith("x-content/"); }),
                 wanted.end());
    wanted.prepend("inode/directory");
    EXPECT_EQ(value("MimeType", "Desktop Entry", menu).split(';', Qt::SkipEmptyParts), wanted);
    // Folders have a program of their own to open with.
    EXPECT_FALSE(types().contains("inode/directory"));
}

TEST_F(DesktopEntryTest, TheIconIsThereInEverySize)
{
    const QDir theme(m_tree.filePath("share/icons/hicolor"));
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString file = theme.filePath(QStringLiteral("%1x%1/apps/%2.png").arg(size).arg(value("Icon")));
        const QImage icon(file);
        EXPECT_EQ(icon.size(), QSize(size, size)) << qPrintable(file);
        EXPECT_TRUE(icon.hasAlphaChannel()) << qPrintable(file);
    }
    EXPECT_TRUE(theme.exists("scalable/apps/" + value("Icon") + ".svg"));
}

TEST_F(DesktopEntryTest, EveryMediaFileThatTheDesktopKnowsIsOffered)
{
    const QStringList offered = types();
    // Its desktop type is that of music trackers, which are something else than the cameras' films of this
    // name.
    const QStringList leftOut{QStringLiteral("mod")};
    const QMimeDatabase database;
    int known = 0;
    const QStringList extensions = CommonInfoManager::playableExtensions();
    for (const QString &extension : extensions) {
        if (leftOut.contains(extension))
            continue;
        QStringList names;
        const QList<QMimeType> found = database.mimeTypesForFileName("film." + extension);
        for (const QMimeType &type : found) {
            if (type.name().startsWith("video/") || type.name().startsWith("audio/"))
                names << type.name();
        }
        bool isOffered = names.isEmpty();
        for (const QString &name : qAsConst(names))
            isOffered = isOffered || offered.contains(name);
        EXPECT_TRUE(isOffered) << qPrintable(extension) << ": " << qPrintable(names.join(' '));
        known += names.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(known, 40);
}

TEST_F(DesktopEntryTest, EntryAndSessionOfferTheSame)
{
    MediaSession session;
    QObject object;
    const MprisRootAdaptor adaptor(&object, &session, {}, {});
    EXPECT_EQ(types(), adaptor.mimeTypes());
}

} // namespace
