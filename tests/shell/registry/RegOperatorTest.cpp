#include "RegistrySandbox.h"

#include "registry/JRegOperator.h"
#include "registry/JRegReader.h"

#include <gtest/gtest.h>

namespace {

class RegOperatorTest : public testing::Test {
protected:
    RegistrySandbox m_sandbox;
    JRegOperator m_registry;
    JRegReader m_reader;
    const std::string m_key = RegistrySandbox::key("Operator");
};

TEST_F(RegOperatorTest, WritesTextsAndNumbersAndMakesTheirKeys)
{
    EXPECT_EQ(m_registry.SetStringValue(Roots::User, m_key + "\\Deep\\Deeper", "Name", "a text"), 0);
    EXPECT_EQ(m_registry.SetDwordValue(Roots::User, m_key, "Number", 0xFFFFFFFFu), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key + "\\Deep\\Deeper", "Name"), "a text");
    EXPECT_EQ(m_reader.dwordValue(Roots::User, m_key, "Number"), 0xFFFFFFFFu);
    EXPECT_EQ(m_registry.Commit(), 1);
}

TEST_F(RegOperatorTest, AnEmptyNameIsTheDefaultValue)
{
    EXPECT_EQ(m_registry.SetStringValue(Roots::User, m_key, "", "default"), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, ""), "default");
    EXPECT_EQ(m_registry.SetStringValue(Roots::User, m_key, "", ""), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, ""), "");
    EXPECT_EQ(m_registry.DeleteValue(Roots::User, m_key, ""), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, "").value_or(""), "");
}

TEST_F(RegOperatorTest, NamesAreFoundInAnyCase)
{
    m_registry.SetStringValue(Roots::User, m_key, "Name", "one");
    m_registry.SetStringValue(Roots::User, m_key, "NAME", "two");
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, "name"), "two");
    EXPECT_TRUE(m_reader.hasKey(Roots::User, RegistrySandbox::key("oPERATOR")));
}

TEST_F(RegOperatorTest, ATextIsNoNumberAndANumberIsNoText)
{
    m_registry.SetStringValue(Roots::User, m_key, "Text", "12");
    m_registry.SetDwordValue(Roots::User, m_key, "Number", 12);
    EXPECT_EQ(m_reader.dwordValue(Roots::User, m_key, "Text"), std::nullopt);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, "Number"), std::nullopt);
}

TEST_F(RegOperatorTest, WritesIntoThe64BitViewGoToTheMachineWhateverTheRoot)
{
    EXPECT_EQ(m_registry.SetStringValue64(Roots::User, m_key, "Text", "machine"), 0);
    EXPECT_EQ(m_registry.SetDwordValue64(Roots::User, m_key, "Number", 7), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::Machine, m_key, "Text"), "machine");
    EXPECT_EQ(m_reader.dwordValue(Roots::Machine, m_key, "Number"), 7u);
    EXPECT_FALSE(m_reader.hasKey(Roots::User, m_key));
    EXPECT_EQ(m_registry.DeleteValue64(Roots::Machine, m_key, "Text"), 0);
    EXPECT_EQ(m_reader.stringValue(Roots::Machine, m_key, "Text"), std::nullopt);
    EXPECT_EQ(m_registry.DeleteKey64(Roots::Machine, RegistrySandbox::key(), "Operator"), 0);
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, m_key));
}

TEST_F(RegOperatorTest, DeletingWhatIsNotThereIsNoError)
{
    EXPECT_EQ(m_registry.DeleteValue(Roots::User, m_key, "Missing"), 0);
    EXPECT_EQ(m_registry.DeleteKey(Roots::User, m_key, "Missing"), 0);
    // The key is made on the way, as an opening of it would.
    EXPECT_TRUE(m_reader.hasKey(Roots::User, m_key));
}

TEST_F(RegOperatorTest, AKeyGoesWithAllBelowItAndItsNeighboursStay)
{
    for (const char *below : {"Tree", "Tree\\a", "Tree\\a\\b\\c", "Tree\\d", "Treehouse", "Tree!", "Tre"})
        m_registry.SetStringValue(Roots::User, m_key + '\\' + below, "v", "x");
    EXPECT_EQ(m_registry.DeleteKey(Roots::User, m_key, "tree"), 0);
    EXPECT_FALSE(m_reader.hasKey(Roots::User, m_key + "\\Tree"));
    EXPECT_FALSE(m_reader.hasKey(Roots::User, m_key + "\\Tree\\a\\b\\c"));
    for (const char *stays : {"Treehouse", "Tree!", "Tre"})
        EXPECT_TRUE(m_reader.hasKey(Roots::User, m_key + '\\' + stays)) << stays;
}

TEST_F(RegOperatorTest, ADeletionWithoutASubkeyTouchesNothing)
{
    m_registry.SetStringValue(Roots::User, m_key, "v", "x");
    EXPECT_EQ(m_registry.DeleteKey(Roots::User, m_key, ""), RegResults::Failure);
    EXPECT_EQ(m_registry.DeleteKey(Roots::User, m_key, "\\"), RegResults::Failure);
    EXPECT_EQ(m_registry.DeleteKey64(Roots::User, m_key, ""), RegResults::Failure);
    EXPECT_EQ(m_reader.stringValue(Roots::User, m_key, "v"), "x");
}

TEST_F(RegOperatorTest, ARootThatIsNoneIsAFailure)
{
    EXPECT_EQ(m_registry.SetStringValue(nullptr, m_key, "v", "x"), RegResults::Failure);
    EXPECT_EQ(m_registry.DeleteValue(nullptr, m_key, "v"), RegResults::Failure);
    EXPECT_EQ(m_registry.DeleteKey(nullptr, m_key, "v"), RegResults::Failure);
    EXPECT_EQ(m_reader.stringValue(nullptr, m_key, "v"), std::nullopt);
}

TEST_F(RegOperatorTest, RootsHaveTheirNumbersAndNoOthers)
{
    for (int index = 0; index < RegRoots::Count; ++index)
        EXPECT_EQ(RegRoots::index(RegRoots::handle(index)), index);
    EXPECT_EQ(RegRoots::handle(5), nullptr);
    EXPECT_EQ(RegRoots::handle(-1), nullptr);
    EXPECT_EQ(RegRoots::index(nullptr), -1);
}

} // namespace
