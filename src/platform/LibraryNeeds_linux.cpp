#include "LibraryNeeds.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cstdlib>
#include <cstring>
#include <functional>

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

namespace {

// A library's file as the linker sees it; every number of it is looked at before it is used.
class ElfFile final {
public:
    explicit ElfFile(const QString &path)
        : m_file(path)
    {
        if (m_file.open(QIODevice::ReadOnly))
            m_data = m_file.map(0, m_file.size());
        m_size = m_data != nullptr ? quint64(m_file.size()) : 0;
    }

    // In the order in which they are written down.
    [[nodiscard]] QStringList needed() const
    {
        ElfW(Ehdr) head;
        if (!read(0, head) || std::memcmp(head.e_ident, ELFMAG, SELFMAG) != 0
            || head.e_ident[EI_CLASS] != (sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32)
            || head.e_phentsize != sizeof(ElfW(Phdr)))
            return {};
        ElfW(Phdr) dynamic;
        if (!segment(head, dynamic, [](const ElfW(Phdr) & part) { return part.p_type == PT_DYNAMIC; }))
            return {};
        QVector<quint64> names;
        quint64 textAddress = 0;
        ElfW(Dyn) entry;
        for (quint64 at = 0;
             at < dynamic.p_filesz && read(dynamic.p_offset + at, entry) && entry.d_tag != DT_NULL;
             at += sizeof(entry)) {
            if (entry.d_tag == DT_NEEDED)
                names.append(entry.d_un.d_val);
            else if (entry.d_tag == DT_STRTAB)
                textAddress = entry.d_un.d_ptr;
        }
        ElfW(Phdr) texts;
        if (!segment(head, texts, [textAddress](const ElfW(Phdr) & part) {
                return part.p_type == PT_LOAD && textAddress >= part.p_vaddr
                       && textAddress - part.p_vaddr < part.p_filesz;
            }))
            return {};
        QStringList result;
        for (const quint64 name : qAsConst(names))
            result.append(text(texts.p_offset + (textAddress - texts.p_vaddr) + name));
        result.removeAll(QString());
        return result;
    }

private:
    template<typename T>
    [[nodiscard]] bool read(quint64 offset, T &value) const
    {
        if (offset > m_size || m_size - offset < sizeof(T))
            return false;
        std::memcpy(&value, m_data + offset, sizeof(T));
        return true;
    }

    [[nodiscard]] bool segment(const ElfW(Ehdr) & head, ElfW(Phdr) & part,
                               const std::function<bool(const ElfW(Phdr) &)> &isIt) const
    {
        for (quint64 i = 0; i < head.e_phnum; ++i) {
            if (!read(head.e_phoff + i * sizeof(part), part))
                return false;
            if (isIt(part))
                return true;
        }
        return false;
    }

    [[nodiscard]] QString text(quint64 offset) const
    {
        if (offset >= m_size)
            return {};
        const auto *begin = reinterpret_cast<const char *>(m_data + offset);
        const std::size_t length = strnlen(begin, m_size - offset);
        return length < m_size - offset ? QFile::decodeName(QByteArray(begin, int(length))) : QString();
    }

    QFile m_file;
    const uchar *m_data{nullptr};
    quint64 m_size{0};
};

// Where the system keeps its libraries: beside the one that every program has.
QString systemFolder()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void *>(&std::malloc), &info) == 0)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).path();
}

using Take = std::function<void(const QString &name)>;

void visit(const QString &file, const QString &folder, QSet<QString> &seen, const Take &take)
{
    const QStringList names = ElfFile(file).needed();
    for (const QString &name : names) {
        if (seen.contains(name))
            continue;
        seen.insert(name);
        visit(folder + QLatin1Char('/') + name, folder, seen, take);
        take(name);
    }
}

void visitAll(const QString &file, const Take &take)
{
    QSet<QString> seen;
    visit(file, systemFolder(), seen, take);
}

} // namespace

namespace LibraryNeeds {

QStringList inOrder(const QString &file)
{
    QStringList names;
    visitAll(file, [&names](const QString &name) { names.append(name); });
    return names;
}

// By name, so that the linker finds the very file that it would find later. All their names are resolved at
// once: one that relies on libraries it does not name fails here and comes with those that do name them.
void load(const QString &file)
{
    visitAll(file, [](const QString &name) { (void)dlopen(QFile::encodeName(name).constData(), RTLD_NOW); });
}

} // namespace LibraryNeeds
