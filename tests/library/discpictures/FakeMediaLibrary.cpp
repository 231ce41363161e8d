// A library of disc pictures for tests: remembers how it was opened and tells it when asked. It refuses a
// data folder that ends with "refused", and throws at the key "throw".
#include "library/IMediaLibraryApi.h"

#include <stdexcept>
#include <string>

namespace {

class FakeMediaLibrary final : public IMediaLibraryApi {
public:
    virtual ~FakeMediaLibrary() = default;

    int open(const char *dataFolder, const char *pictureFolder, const char *name, const char *user,
             const char *password) override
    {
        m_opened = std::string(dataFolder) + '|' + pictureFolder + '|' + name + '|' + user + '|' + password;
        const std::string refused = "refused";
        const std::string folder = dataFolder;
        return folder.size() < refused.size()
               || folder.compare(folder.size() - refused.size(), refused.size(), refused) != 0;
    }
    void operation2() override {}
    void operation3() override {}
    void operation4() override {}
    void operation5() override {}
    void operation6() override {}
    void operation7() override {}
    void operation8() override {}
    void operation9() override {}
    const char *callService(const char *key, const char *argument1, const char *argument2) override
    {
        const std::string asked = key;
        if (asked == "throw")
            throw std::runtime_error("asked for it");
        if (asked == "nothing")
            return nullptr;
        m_answer = m_opened + '|' + key + '|' + argument1 + '|' + argument2;
        return m_answer.c_str();
    }
    void operation11() override {}
    void operation12() override {}
    void operation13() override {}
    void operation14() override {}

private:
    std::string m_opened;
    std::string m_answer;
};

} // namespace

extern "C" __attribute__((visibility("default"))) IMediaLibraryApi *GetMediaLibraryApiInstance()
{
    static FakeMediaLibrary library;
    return &library;
}
