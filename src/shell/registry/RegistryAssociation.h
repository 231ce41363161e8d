// What the program writes into the registry so that the shell knows it: its entry among the players, its verb
// in the menus of files and folders, the files that open with it, and what offers to play an inserted disc.
//
// Each operation goes through one operator and one commit, so that the user is asked once; the order of the
// writes is fixed. A false says that something could not be recorded or the commit failed; nothing is written
// then where the helper does it. Extensions come with their point, ".mkv". Blocks during the commit; one
// thread at a time.
#pragma once

#include "IRegOperator.h"
#include "IRegReader.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class RegistryAssociation final {
public:
    struct Names {
        std::string application;
        std::string progId;
        // Without its folder.
        std::string executable;
        // The quoted program with "%1".
        std::string command;
        // The quoted program with the number of its icon.
        std::string icon;
        // All that the program plays.
        std::vector<std::string> extensions;
    };
    using OperatorMaker = std::function<std::unique_ptr<IRegOperator>()>;

    RegistryAssociation(Names names, const IRegReader &reader, OperatorMaker maker);

    bool RegisterApplication();
    bool UnregisterApplication();
    // What an extension opened with before is kept beside it, once, and put back when it is restored.
    bool AssociateExtensions(const std::vector<std::string> &extensions);
    bool RestoreExtensions(const std::vector<std::string> &extensions);
    // Both with one commit: first what is given back, then what is taken.
    bool ChangeExtensions(const std::vector<std::string> &associate, const std::vector<std::string> &restore);
    [[nodiscard]] bool IsAssociated(const std::string &extension) const;
    bool RegisterAutoplay(bool enable);

private:
    class Writes;

    [[nodiscard]] bool throughOneOperator(const std::function<void(Writes &)> &work) const;
    void associate(Writes &writes, const std::string &extension) const;
    void restore(Writes &writes, const std::string &extension) const;
    void registerAutoplay(Writes &writes) const;
    void unregisterAutoplay(Writes &writes) const;

    Names m_names;
    const IRegReader &m_reader;
    OperatorMaker m_maker;
};
