#include "CommandLine.h"

namespace {

constexpr char kInstallMode[] = "--installmode";
constexpr char kAddPlan[] = "/add_plan";
constexpr char kLibrary[] = "--library";

struct MaintenanceRow {
    const char *argument;
    CommandLine::Maintenance run;
};

// The first row that matches decides.
constexpr MaintenanceRow kMaintenance[] = {
    {"/install", CommandLine::Maintenance::Install},
    {"/uninstall", CommandLine::Maintenance::Uninstall},
    {"/full_uninstall", CommandLine::Maintenance::FullUninstall},
};

struct FlagRow {
    const char *word;
    int flag;
};

constexpr FlagRow kFlags[] = {
    {"fullscreen", CommandLine::FullScreenFlag},
    {"close", CommandLine::CloseAtEndFlag},
};

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
    : m_arguments(arguments)
{
    m_arguments.removeAll(QLatin1String(kInstallMode));
    const int option = m_arguments.indexOf(QLatin1String(kLibrary), 1);
    if (option < 0)
        return;
    m_libraryFolder = m_arguments.value(option + 1);
    m_arguments.erase(m_arguments.begin() + option,
                      m_arguments.begin() + qMin(option + 2, m_arguments.size()));
}

CommandLine::Maintenance CommandLine::maintenance() const
{
    for (const MaintenanceRow &row : kMaintenance) {
        if (m_arguments.indexOf(QLatin1String(row.argument), 1) > 0)
            return row.run;
    }
    return Maintenance::None;
}

bool CommandLine::joinsPlan() const
{
    return m_arguments.indexOf(QLatin1String(kAddPlan), 1) > 0;
}

int CommandLine::startFlags() const
{
    int flags = 0;
    for (const FlagRow &row : kFlags) {
        if (anyContains(row.word))
            flags |= row.flag;
    }
    return flags;
}

bool CommandLine::anyContains(const char *word) const
{
    return !m_arguments.filter(QLatin1String(word), Qt::CaseInsensitive).isEmpty();
}
