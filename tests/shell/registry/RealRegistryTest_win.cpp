// What only the real registry has: views, keys that can't be deleted, servers, and the system's own handles.
#include "RegistrySandbox.h"
#include "RunProgram.h"

#include "registry/DRegTaskManager.h"
#include "registry/ElevatedHelper.h"
#include "registry/JRegKey_win.h"
#include "registry/JRegOperator.h"
#include "registry/JRegReader.h"
#include "registry/JX64RegOperator.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

class RealRegistryTest : public testing::Test {
protected:
    RegistrySandbox m_sandbox;
    JRegOperator m_registry;
    JRegReader m_reader;
};

TEST_F(RealRegistryTest, RootsAreTheSystemsOwnHandles)
{
    EXPECT_EQ(RegRoots::handle(0), HKEY_CLASSES_ROOT);
    EXPECT_EQ(RegRoots::handle(1), HKEY_CURRENT_USER);
    EXPECT_EQ(RegRoots::handle(2), HKEY_LOCAL_MACHINE);
    EXPECT_EQ(RegRoots::handle(3), HKEY_USERS);
    EXPECT_EQ(RegRoots::handle(4), HKEY_CURRENT_CONFIG);
}

TEST_F(RealRegistryTest, ValuesHaveTheirTypesAndTextsTheirTerminator)
{
    const std::string key = RegistrySandbox::key();
    m_registry.SetStringValue(HKEY_CURRENT_USER, key, "Text", "abc");
    m_registry.SetDwordValue(HKEY_CURRENT_USER, key, "Number", 5);
    JRegKey open;
    ASSERT_EQ(open.open(HKEY_CURRENT_USER, key.c_str(), JRegKey::Access), ERROR_SUCCESS);
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExA(open.handle(), "Text", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, DWORD(REG_SZ));
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(RegQueryValueExA(open.handle(), "Number", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, DWORD(REG_DWORD));
    EXPECT_EQ(size, 4u);
}

TEST_F(RealRegistryTest, AnExpandableTextIsATextToo)
{
    JRegKey key;
    ASSERT_EQ(key.create(HKEY_CURRENT_USER, RegistrySandbox::key().c_str(), JRegKey::Access), ERROR_SUCCESS);
    const char text[] = "%SystemRoot%\\a";
    RegSetValueExA(key.handle(), "v", 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE *>(text), sizeof text);
    EXPECT_EQ(m_reader.stringValue(HKEY_CURRENT_USER, RegistrySandbox::key(), "v"), text);
}

TEST_F(RealRegistryTest, AKeyKnowsTheViewItWasOpenedIn)
{
    JRegKey key;
    ASSERT_EQ(key.create(HKEY_CURRENT_USER, RegistrySandbox::key().c_str(), JRegKey::Access64),
              ERROR_SUCCESS);
    EXPECT_EQ(key.viewFlags(), REGSAM(KEY_WOW64_64KEY));
    ASSERT_EQ(key.open(HKEY_CURRENT_USER, RegistrySandbox::key().c_str(), JRegKey::Access), ERROR_SUCCESS);
    EXPECT_EQ(key.viewFlags(), 0u);
    EXPECT_EQ(JRegKey::Access, REGSAM(0x2001F));
    EXPECT_EQ(JRegKey::Access64, REGSAM(0x2011F));
}

TEST_F(RealRegistryTest, ATransactionThatIsNoneIsAFailure)
{
    JRegKey key;
    key.setTransaction(INVALID_HANDLE_VALUE);
    EXPECT_NE(key.create(HKEY_CURRENT_USER, RegistrySandbox::key("Transacted").c_str(), JRegKey::Access),
              ERROR_SUCCESS);
    EXPECT_NE(key.open(HKEY_CURRENT_USER, "Software", JRegKey::Access), ERROR_SUCCESS);
    EXPECT_NE(key.deleteSubKey("x"), ERROR_SUCCESS);
}

TEST_F(RealRegistryTest, AServerInTheTempFolderAloneIsCopiedFirst)
{
    std::filesystem::create_directory(m_sandbox.folder() / "temp");
    m_sandbox.write("temp/server.dll", "no library");
    (void)m_registry.RegisterServer(m_sandbox.folder().string(), "server.dll");
    EXPECT_EQ(m_sandbox.content("server.dll"), "no library");
}

TEST_F(RealRegistryTest, RegisterServerReportsSuccessWhenTheToolMerelyStarted)
{
    // The tool can make nothing of the one file, and does not find the other.
    m_sandbox.write("server.dll", "no library");
    for (const char *file : {"server.dll", "nowhere.dll"}) {
        EXPECT_EQ(m_registry.RegisterServer(m_sandbox.folder().string(), file), RegResults::Success) << file;
        EXPECT_EQ(m_registry.UnregisterServer(m_sandbox.folder().string(), file), RegResults::Success)
            << file;
    }
}

TEST_F(RealRegistryTest, AServerThatIsThereIsNotOverwritten)
{
    std::filesystem::create_directory(m_sandbox.folder() / "temp");
    m_sandbox.write("server.dll", "present");
    m_sandbox.write("temp/server.dll", "other");
    EXPECT_EQ(m_registry.RegisterServer(m_sandbox.folder().string(), "server.dll"), 0);
    EXPECT_EQ(m_sandbox.content("server.dll"), "present");
}

TEST_F(RealRegistryTest, UnregisteringDoesNotCopy)
{
    std::filesystem::create_directory(m_sandbox.folder() / "temp");
    m_sandbox.write("temp/server.dll", "other");
    EXPECT_EQ(m_registry.UnregisterServer(m_sandbox.folder().string(), "server.dll"), 0);
    EXPECT_EQ(m_sandbox.names(), std::vector<std::string>{"temp"});
}

TEST_F(RealRegistryTest, AFileNameWithAQuoteIsRefused)
{
    EXPECT_EQ(m_registry.RegisterServer(m_sandbox.folder().string(), "a\" /u \"b.dll"), RegResults::Failure);
}

TEST_F(RealRegistryTest, TheHelperIsStartedByTheShellWithRaisedRights)
{
    JX64RegOperator registry(kHelperProgram, ElevatedHelper::run);
    const std::string key = RegistrySandbox::key("Elevated");
    registry.SetStringValue64(HKEY_CURRENT_USER, key, "Where", "machine");
    EXPECT_EQ(registry.Commit(), 1);
    EXPECT_EQ(m_reader.stringValue(HKEY_LOCAL_MACHINE, key, "Where"), "machine");
}

TEST_F(RealRegistryTest, TheHelperRunsTasksOfServersInTheirOrder)
{
    std::filesystem::create_directory(m_sandbox.folder() / "temp");
    m_sandbox.write("temp/server.dll", "no library");
    JX64RegOperator registry(kHelperProgram, ElevatedHelper::run);
    registry.RegisterServer(m_sandbox.folder().string(), "server.dll");
    registry.SetStringValue(HKEY_CURRENT_USER, RegistrySandbox::key(), "After", "x");
    EXPECT_EQ(registry.Commit(), 1);
    EXPECT_EQ(m_sandbox.content("server.dll"), "no library");
    EXPECT_EQ(m_reader.stringValue(HKEY_CURRENT_USER, RegistrySandbox::key(), "After"), "x");
}

TEST_F(RealRegistryTest, AHelperThatCannotBeStartedHasNoExitCode)
{
    m_sandbox.write("broken.exe", "no program");
    EXPECT_EQ(ElevatedHelper::run(m_sandbox.path("broken.exe"), "file"), std::nullopt);
}

TEST_F(RealRegistryTest, AHelperThatOutlastsTheLimitIsEnded)
{
    char program[MAX_PATH] = {};
    ASSERT_GT(GetModuleFileNameA(nullptr, program, MAX_PATH), 0u);
    EXPECT_EQ(ElevatedHelper::run(program, kWaitArgument, 500), std::nullopt);
}

} // namespace
