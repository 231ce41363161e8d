#include "http/ImageFiles.h"

#include "../rpc/LibraryFakes.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

const QByteArray jpeg("\xff\xd8\xff\xe0 a picture", 14);
const QByteArray png("\x89PNG\r\n\x1a\n and more", 17);

class ImageFilesTest : public testing::Test {
protected:
    ImageFilesTest()
    {
        for (const char *name : {"cache", "films", "outside"})
            QDir(m_folder.path()).mkpath(QString::fromUtf8(name));
        m_roots.stored = {{5, 1, at("films"), {}, true}};
    }
    [[nodiscard]] QString at(const char *path) const { return m_folder.filePath(QString::fromUtf8(path)); }
    void write(const char *path, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(at(path)).absolutePath());
        QFile file(at(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] static QByteArray encoded(const QString &key) { return key.toUtf8().toPercentEncoding(); }

    QTemporaryDir m_folder;
    FakeRoots m_roots;
    FakeArtwork m_artwork;
    ImageFiles m_images{m_folder.filePath(QStringLiteral("cache")), m_roots, m_artwork};
};

} // namespace

TEST_F(ImageFilesTest, OpensPicturesOfTheCacheAndOfLibraryFolders)
{
    write("cache/ab12.jpg", jpeg);
    write("films/Film (2010)/poster é%20#?.png", png);
    const QString art = at("films/Film (2010)/poster é%20#?.png");
    m_artwork.named << art;
    const ImageFile cached = m_images.open("ab12.jpg");
    ASSERT_TRUE(cached.file.isOpen());
    EXPECT_EQ(cached.contentType, QByteArray("image/jpeg"));
    EXPECT_EQ(cached.file.size(), jpeg.size());
    for (const QByteArray &key :
         {encoded(art), art.toUtf8().toPercentEncoding("/"), art.toUtf8().toPercentEncoding("/ ()")}) {
        const ImageFile image = m_images.open(key);
        EXPECT_TRUE(image.file.isOpen()) << key.constData();
        EXPECT_EQ(image.contentType, QByteArray("image/png"));
    }
}

TEST_F(ImageFilesTest, APictureInALibraryFolderThatNoRecordNamesIsNotServed)
{
    write("films/Film/poster.jpg", jpeg);
    write("films/Film/private.jpg", jpeg);
    const QString art = at("films/Film/poster.jpg");
    EXPECT_FALSE(m_images.open(encoded(art)).file.isOpen());
    m_artwork.named << art;
    EXPECT_TRUE(m_images.open(encoded(art)).file.isOpen());
    // Not by another name for it either.
    for (const QString &key : {at("films/Film/private.jpg"), at("films//Film/poster.jpg"),
                               at("films/Film/./poster.jpg"), at("films/Film/../Film/poster.jpg")})
        EXPECT_FALSE(m_images.open(encoded(key)).file.isOpen()) << qPrintable(key);
    // Nor once its folder is no library folder any more.
    m_roots.stored.clear();
    EXPECT_FALSE(m_images.open(encoded(art)).file.isOpen());
}

TEST_F(ImageFilesTest, WhatARecordNamesIsServedFromLibraryFoldersOnly)
{
    write("outside/a.jpg", jpeg);
    write("films/film.mkv", "\x1a\x45\xdf\xa3");
    QDir().mkpath(at("films/folder.jpg"));
    QFile::link(at("outside/a.jpg"), at("films/link.jpg"));
    QFile::link(at("outside"), at("films/linked"));
    const QString keys[] = {at("outside/a.jpg"),
                            at("films/../outside/a.jpg"),
                            at("films/link.jpg"),
                            at("films/linked/a.jpg"),
                            at("films/film.mkv"),
                            at("films/folder.jpg"),
                            at("films"),
                            at("films/"),
                            at("films\\..\\outside\\a.jpg"),
                            QStringLiteral("..\\outside\\a.jpg"),
                            QStringLiteral("../outside/a.jpg"),
                            QStringLiteral("/etc/passwd"),
                            QStringLiteral("/dev/zero")};
    for (const QString &key : keys)
        m_artwork.named << key;
    for (const QString &key : keys)
        EXPECT_FALSE(m_images.open(encoded(key)).file.isOpen()) << qPrintable(key);
}

TEST_F(ImageFilesTest, EverythingElseIsNotThere)
{
    write("cache/ab12.jpg", jpeg);
    write("cache/inner/c.jpg", jpeg);
    write("cache/text.jpg", "no picture at all");
    write("cache/empty.jpg", {});
    write("films/film.mkv", "\x1a\x45\xdf\xa3");
    write("outside/a.jpg", jpeg);
    write("films2/a.jpg", jpeg);
    QDir().mkpath(at("films/folder.jpg"));
    QFile::link(at("outside/a.jpg"), at("films/link.jpg"));
    QFile::link(at("outside/a.jpg"), at("cache/link.jpg"));
    QFile::link(at("outside"), at("films/linked"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(at("cache/pipe.jpg")).constData(), 0600), 0);
    const QByteArray keys[] = {
        "",
        "missing.jpg",
        "ab12.jpg%00",
        "%00",
        "ab12.jpg%",
        "ab12.jpg%2",
        "ab12.jpg%zz",
        "%ff%fe.jpg",
        "ab12%2Ejpg%0a",
        "..",
        ".",
        "..%2Foutside%2Fa.jpg",
        "../outside/a.jpg",
        "..%5Coutside%5Ca.jpg",
        "%2e%2e/outside/a.jpg",
        "inner/c.jpg",
        "inner%2Fc.jpg",
        "text.jpg",
        "empty.jpg",
        "link.jpg",
        "pipe.jpg",
        "%252e%252e%252foutside%252fa.jpg",
        "/etc/passwd",
        "%2Fetc%2Fpasswd",
        "/dev/zero",
        "C:%5Cfilms%5Ca.jpg",
        encoded(at("outside/a.jpg")),
        encoded(at("films2/a.jpg")),
        encoded(at("films/../outside/a.jpg")),
        encoded(at("films/./link.jpg")),
        encoded(at("films/link.jpg")),
        encoded(at("films/linked/a.jpg")),
        encoded(at("films/film.mkv")),
        encoded(at("films/folder.jpg")),
        encoded(at("films")),
        encoded(at("films/")),
        QByteArray(100000, 'a'),
    };
    for (const QByteArray &key : keys)
        EXPECT_FALSE(m_images.open(key).file.isOpen()) << key.left(200).constData();
    EXPECT_TRUE(m_images.open("ab12.jpg").file.isOpen());
}

TEST_F(ImageFilesTest, AnImageBeyondTheLimitIsNotServed)
{
    write("cache/large.jpg", jpeg);
    QFile file(at("cache/large.jpg"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(ImageFiles::LargestImage));
    EXPECT_TRUE(m_images.open("large.jpg").file.isOpen());
    ASSERT_TRUE(file.resize(ImageFiles::LargestImage + 1));
    EXPECT_FALSE(m_images.open("large.jpg").file.isOpen());
}

TEST_F(ImageFilesTest, TheContentTellsTheType)
{
    struct Row {
        QByteArray head;
        const char *type;
    };
    const Row rows[] = {{jpeg, "image/jpeg"},       {png, "image/png"},
                        {"GIF89a...", "image/gif"}, {"GIF87a", "image/gif"},
                        {"BM....", "image/bmp"},    {"RIFF....WEBPVP8 ", "image/webp"},
                        {"RIFF....WAVE", ""},       {"<svg", ""},
                        {"\xff\xd8", ""},           {"", ""}};
    for (const Row &row : rows)
        EXPECT_EQ(ImageFiles::typeOf(row.head), QByteArray(row.type)) << row.head.constData();
}
