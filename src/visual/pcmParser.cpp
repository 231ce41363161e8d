#include "pcmParser.h"

#include "core/ApplicationInfoManager.h"

#include <QFile>

namespace {
constexpr char kScratchName[] = "/PDATA";
}

pcmParser *pcmParser::instance()
{
    static auto *parser =
        new pcmParser(ApplicationInfoManager::instance()->audioDumpFile() + QLatin1String(kScratchName));
    return parser;
}

pcmParser::pcmParser(QString scratchFile, QObject *parent)
    : QObject(parent)
    , m_scratchFile(std::move(scratchFile))
{
}

void pcmParser::stop()
{
    slot_cleanStackData();
}

void pcmParser::slot_cleanStackData()
{
    QFile::remove(m_scratchFile);
}
