#include "platform/DiscLabel.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class DiscLabelTest : public testing::Test {
protected:
    // An image with the given bytes where the first volume descriptor stands.
    QString image(const QByteArray &descriptor) const
    {
        QFile file(m_folder.filePath("Some Film.iso"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(16 * 2048, '\0') + descriptor);
        return file.fileName();
    }

    static QByteArray descriptor(const QByteArray &name)
    {
        return QByteArray("\x01"
                          "CD001\x01\0",
                          8)
               + QByteArray(32, ' ') + name.leftJustified(32, ' ') + QByteArray(2048 - 72, '\0');
    }

    QTemporaryDir m_folder;
};

TEST_F(DiscLabelTest, AnImageHasTheNameInItsDescriptor)
{
    EXPECT_EQ(discLabel(image(descriptor("MY FILM_2"))), "MY FILM_2");
}

TEST_F(DiscLabelTest, AnImageWithoutAUsableNameHasThatOfItsFile)
{
    for (const QByteArray &bytes :
         {descriptor(""), descriptor(QByteArray(32, '\0')), QByteArray(), QByteArray(10, '\x01'),
          QByteArray(2048, '\xff'), descriptor("CUT").left(50)})
        EXPECT_EQ(discLabel(image(bytes)), "Some Film");
}

TEST_F(DiscLabelTest, AFolderHasItsOwnNameAndNothingHasNone)
{
    EXPECT_EQ(discLabel(m_folder.path() + "/"), m_folder.path().section('/', -1));
    EXPECT_EQ(discLabel(m_folder.filePath("gone")), "");
    EXPECT_EQ(discLabel(""), "");
}

} // namespace
