#include "RegistryAssociation.h"

#include <utility>

namespace {

constexpr char kClasses[] = "SOFTWARE\\Classes\\";
constexpr char kClassesKey[] = "SOFTWARE\\Classes";
constexpr char kApplications[] = "SOFTWARE\\Classes\\Applications";
constexpr char kSystemFiles[] = "SOFTWARE\\Classes\\SystemFileAssociations\\";
constexpr char kDirectoryShell[] = "SOFTWARE\\Classes\\Directory\\shell";
constexpr char kMediaClients[] = "SOFTWARE\\Clients\\Media";
constexpr char kCapabilities[] = "\\Capabilities";
constexpr char kFileAssociations[] = "\\FileAssociations";
constexpr char kRegisteredApplications[] = "SOFTWARE\\RegisteredApplications";
constexpr char kFileExtensions[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\";
constexpr char kUserChoice[] = "UserChoice";
constexpr char kAutoplay[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\";

constexpr char kDefaultIcon[] = "\\DefaultIcon";
constexpr char kShell[] = "\\shell";
constexpr char kOpenCommand[] = "\\shell\\open\\command";
constexpr char kCommand[] = "\\command";
constexpr char kDefault[] = "";

constexpr char kMark[] = "KelFile";
constexpr char kBackup[] = "KelFile.backup";

constexpr char kVerb[] = "PlayWithQuorinSix";
constexpr char kOlderVerb[] = "PlayWithQuorin";
constexpr char kVerbText[] = "Play with Quorin Player 6";

constexpr char kAutoplayProgId[] = "QuorinSix.AutoPlay";
constexpr char kHandler[] = "QuorinSixMovieOnArrival";
constexpr char kHandlers[] = "Handlers";
constexpr const char *kArrivals[] = {"PlayBluRayOnArrival", "PlayDVDMovieOnArrival",
                                     "PlayVideoFilesOnArrival"};
constexpr const char *kSelections[] = {"EventHandlersDefaultSelection\\PlayVideoFilesOnArrival",
                                       "UserChosenExecuteHandlers\\PlayVideoFilesOnArrival"};

// The two places that say what an extension opens with.
struct ClassPlace {
    RegRoots::Index root;
    const char *before;
};
constexpr ClassPlace kClassPlaces[] = {{RegRoots::LocalMachine, kClasses}, {RegRoots::ClassesRoot, ""}};

std::string below(const char *parent, const char *child)
{
    return std::string(parent) + '\\' + child;
}

} // namespace

// The calls of one operator, with the failures counted.
class RegistryAssociation::Writes final {
public:
    explicit Writes(IRegOperator &registry)
        : m_registry(registry)
    {
    }

    void set(const std::string &key, const char *name, const std::string &value,
             RegRoots::Index root = RegRoots::LocalMachine)
    {
        note(m_registry.SetStringValue(RegRoots::handle(root), key, name, value));
    }
    void removeValue(const std::string &key, const std::string &name,
                     RegRoots::Index root = RegRoots::LocalMachine)
    {
        note(m_registry.DeleteValue(RegRoots::handle(root), key, name));
    }
    void removeKey(const std::string &key, const std::string &subKey,
                   RegRoots::Index root = RegRoots::LocalMachine)
    {
        note(m_registry.DeleteKey(RegRoots::handle(root), key, subKey));
    }
    [[nodiscard]] bool good() const { return m_good; }

private:
    void note(RegResult result) { m_good = m_good && result >= 0; }

    IRegOperator &m_registry;
    bool m_good{true};
};

RegistryAssociation::RegistryAssociation(Names names, const IRegReader &reader, OperatorMaker maker)
    : m_names(std::move(names))
    , m_reader(reader)
    , m_maker(std::move(maker))
{
}

bool RegistryAssociation::RegisterApplication()
{
    return throughOneOperator([this](Writes &writes) {
        const std::string progId = kClasses + m_names.progId;
        writes.set(progId + kDefaultIcon, kDefault, m_names.icon);
        writes.set(progId + kOpenCommand, kDefault, m_names.command);

        const std::string capabilities = below(kMediaClients, m_names.application.c_str()) + kCapabilities;
        writes.set(capabilities, "ApplicationDescription", m_names.application);
        writes.set(capabilities, "ApplicationName", m_names.application);
        for (const std::string &extension : m_names.extensions)
            writes.set(capabilities + kFileAssociations, extension.c_str(), m_names.progId);
        writes.set(kRegisteredApplications, m_names.application.c_str(), capabilities);

        for (const std::string &extension : m_names.extensions) {
            const std::string shell = kSystemFiles + extension + kShell;
            const std::string verb = below(shell.c_str(), kVerb);
            writes.set(verb, kDefault, kVerbText);
            writes.set(verb, "MultiSelectModel", "Player");
            writes.set(verb + kCommand, kDefault, m_names.command);
            writes.removeKey(shell, kOlderVerb);
        }

        const std::string application = below(kApplications, m_names.executable.c_str());
        writes.set(application, "FriendlyAppName", m_names.application);
        writes.set(application + kOpenCommand, kDefault, m_names.command);

        const std::string folderVerb = below(kDirectoryShell, kVerb);
        writes.set(folderVerb, kDefault, kVerbText);
        writes.set(folderVerb + kCommand, kDefault, m_names.command);
    });
}

bool RegistryAssociation::UnregisterApplication()
{
    return throughOneOperator([this](Writes &writes) {
        writes.removeKey(kClassesKey, m_names.progId);
        writes.removeKey(kMediaClients, m_names.application);
        writes.removeValue(kRegisteredApplications, m_names.application);
        for (const std::string &extension : m_names.extensions)
            writes.removeKey(kSystemFiles + extension + kShell, kVerb);
        writes.removeKey(kApplications, m_names.executable);
        writes.removeKey(kDirectoryShell, kVerb);
    });
}

bool RegistryAssociation::AssociateExtensions(const std::vector<std::string> &extensions)
{
    return ChangeExtensions(extensions, {});
}

bool RegistryAssociation::RestoreExtensions(const std::vector<std::string> &extensions)
{
    return ChangeExtensions({}, extensions);
}

bool RegistryAssociation::ChangeExtensions(const std::vector<std::string> &associated,
                                           const std::vector<std::string> &restored)
{
    // Nothing to do is nothing to ask the user for.
    if (associated.empty() && restored.empty())
        return true;
    return throughOneOperator([&](Writes &writes) {
        for (const std::string &extension : restored)
            restore(writes, extension);
        for (const std::string &extension : associated)
            associate(writes, extension);
    });
}

bool RegistryAssociation::IsAssociated(const std::string &extension) const
{
    return m_reader.stringValue(RegRoots::handle(RegRoots::LocalMachine), kClasses + extension, kMark)
           == m_names.progId;
}

bool RegistryAssociation::RegisterAutoplay(bool enable)
{
    return throughOneOperator([&](Writes &writes) {
        if (enable)
            registerAutoplay(writes);
        else
            unregisterAutoplay(writes);
    });
}

bool RegistryAssociation::throughOneOperator(const std::function<void(Writes &)> &work) const
{
    const std::unique_ptr<IRegOperator> registry = m_maker();
    if (!registry)
        return false;
    Writes writes(*registry);
    work(writes);
    const bool committed = registry->Commit() == 1;
    return committed && writes.good();
}

void RegistryAssociation::associate(Writes &writes, const std::string &extension) const
{
    for (const ClassPlace &place : kClassPlaces) {
        const RegRoot root = RegRoots::handle(place.root);
        const std::string key = place.before + extension;
        const std::string before = m_reader.stringValue(root, key, kDefault).value_or(std::string());
        if (!m_reader.stringValue(root, key, kMark)) {
            writes.set(key, kMark, m_names.progId, place.root);
            // Our own name is nothing to come back to.
            writes.set(key, kBackup, before == m_names.progId ? std::string() : before, place.root);
        }
        writes.set(key, kDefault, m_names.progId, place.root);
    }
    // The shell's own choice would go before both.
    writes.removeKey(kFileExtensions + extension, kUserChoice, RegRoots::CurrentUser);
}

void RegistryAssociation::restore(Writes &writes, const std::string &extension) const
{
    for (const ClassPlace &place : kClassPlaces) {
        const RegRoot root = RegRoots::handle(place.root);
        const std::string key = place.before + extension;
        // What was never taken is not given back.
        if (!m_reader.stringValue(root, key, kMark))
            continue;
        writes.set(key, kDefault, m_reader.stringValue(root, key, kBackup).value_or(std::string()),
                   place.root);
        writes.removeValue(key, kMark, place.root);
        writes.removeValue(key, kBackup, place.root);
    }
}

void RegistryAssociation::registerAutoplay(Writes &writes) const
{
    writes.set(std::string(kClasses) + kAutoplayProgId + kOpenCommand, kDefault, m_names.command);
    const std::string root = kAutoplay;
    const std::string handler = below((root + kHandlers).c_str(), kHandler);
    writes.set(handler, "Action", "Play Movie");
    writes.set(handler, "DefaultIcon", m_names.icon);
    writes.set(handler, "InvokeProgID", kAutoplayProgId);
    writes.set(handler, "InvokeVerb", "Open");
    writes.set(handler, "Provider", m_names.application);
    for (const char *arrival : kArrivals)
        writes.set(root + "EventHandlers\\" + arrival, kHandler, std::string());
    for (const char *selection : kSelections)
        writes.set(root + selection, kDefault, kHandler);
}

void RegistryAssociation::unregisterAutoplay(Writes &writes) const
{
    const std::string root = kAutoplay;
    writes.removeKey(kClassesKey, kAutoplayProgId);
    writes.removeKey(root + kHandlers, kHandler);
    for (const char *arrival : kArrivals)
        writes.removeValue(root + "EventHandlers\\" + arrival, kHandler);
    for (const char *selection : kSelections) {
        // Another program may have taken the place since.
        const auto chosen =
            m_reader.stringValue(RegRoots::handle(RegRoots::LocalMachine), root + selection, kDefault);
        if (chosen == std::string(kHandler))
            writes.removeValue(root + selection, kDefault);
    }
}
