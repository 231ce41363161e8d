// Changes of the registry on their way to a process with more rights: collected here, saved into a task file,
// and loaded and executed by the helper. Both sides of the way use this class.
//
// Owns the list. Results are those of RegTypes.h. No locks are taken: one process writes the file and waits
// for the other to end. Not thread-safe.
#pragma once

#include "RegTask.h"
#include "RegTypes.h"

#include <cstdint>
#include <string>
#include <vector>

class IRegOperator;

class DRegTaskManager {
public:
    DRegTaskManager() = default;
    DRegTaskManager(const DRegTaskManager &) = delete;
    DRegTaskManager &operator=(const DRegTaskManager &) = delete;
    virtual ~DRegTaskManager() = default;

    // Finds the task file in the temporary folder: 0 when it is there, 1 when it has been made.
    virtual RegResult Init();
    virtual RegResult Release();
    // Runs all tasks but those of servers, whatever becomes of each, and takes them out of the file.
    virtual RegResult Execute();

    // A text that the file can't hold, one with a line end for instance, is a failure and not recorded.
    virtual RegResult AddSetString(std::int32_t rootType, const std::string &keyPath,
                                   const std::string &keyName, const std::string &value);
    virtual RegResult AddSetNumber(std::int32_t rootType, const std::string &keyPath,
                                   const std::string &keyName, std::int32_t value);
    virtual RegResult AddSetString64(std::int32_t rootType, const std::string &keyPath,
                                     const std::string &keyName, const std::string &value);
    virtual RegResult AddSetNumber64(std::int32_t rootType, const std::string &keyPath,
                                     const std::string &keyName, std::int32_t value);
    virtual RegResult AddDeleteValue(std::int32_t rootType, const std::string &keyPath,
                                     const std::string &keyName);
    virtual RegResult AddDeleteValue64(std::int32_t rootType, const std::string &keyPath,
                                       const std::string &keyName);
    virtual RegResult AddDeleteKey(std::int32_t rootType, const std::string &keyPath,
                                   const std::string &keyName);
    virtual RegResult AddDeleteKey64(std::int32_t rootType, const std::string &keyPath,
                                     const std::string &keyName);

    RegResult AddRegisterServer(const std::string &folder, const std::string &file);
    RegResult AddUnregisterServer(const std::string &folder, const std::string &file);

    // Replaces the list by the file's tasks. A damaged task costs that task; a file without a count of one
    // or more is a failure. A path that is no file leaves the file as it was found before.
    RegResult Load(const std::string &path = {});
    // Writes the list into the file; the list stays.
    RegResult Save();

    [[nodiscard]] const std::string &FilePath() const { return m_filePath; }
    [[nodiscard]] const std::vector<RegTask> &tasks() const { return m_tasks; }
    // Whether the file says how many tasks it holds, be it none.
    [[nodiscard]] bool hasCount() const;

protected:
    enum class Servers { Skip, Run };
    RegResult executeAll(Servers servers);

private:
    RegResult add(RegTask task);
    static void run(IRegOperator &registry, const RegTask &task, Servers servers);

    std::vector<RegTask> m_tasks;
    std::string m_filePath;
};
