#include "InstalledTree.h"

#include <QProcess>

namespace {

constexpr int kInstallMs = 60000;

} // namespace

InstalledTree::InstalledTree(Component component)
{
    QStringList arguments{QStringLiteral("--install"), QStringLiteral(QUORIN_BUILD),
                          QStringLiteral("--prefix"), path()};
    if (component != Component::All) {
        arguments << QStringLiteral("--component")
                  << (component == Component::Program ? QStringLiteral("program")
                                                      : QStringLiteral("desktop"));
    }
    QProcess install;
    install.setProcessChannelMode(QProcess::MergedChannels);
    install.start(QStringLiteral(QUORIN_CMAKE), arguments);
    if (!install.waitForFinished(kInstallMs) || install.exitCode() != 0)
        m_message = install.errorString() + QLatin1Char('\n') + QString::fromLocal8Bit(install.readAll());
}
