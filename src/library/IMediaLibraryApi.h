// The operations of the library that knows the pictures of discs, in the order in which it gives them. The
// order is the contract: only the first and the tenth are called here, the others keep their places.
#pragma once

class IMediaLibraryApi {
public:
    // Paths in UTF-8. 0 for failure; nothing else may be called then.
    virtual int open(const char *dataFolder, const char *pictureFolder, const char *name, const char *user,
                     const char *password) = 0;
    virtual void operation2() = 0;
    virtual void operation3() = 0;
    virtual void operation4() = 0;
    virtual void operation5() = 0;
    virtual void operation6() = 0;
    virtual void operation7() = 0;
    virtual void operation8() = 0;
    virtual void operation9() = 0;
    // The text belongs to the library and stands until the next call. No argument is null.
    virtual const char *callService(const char *key, const char *argument1, const char *argument2) = 0;
    virtual void operation11() = 0;
    virtual void operation12() = 0;
    virtual void operation13() = 0;
    virtual void operation14() = 0;

protected:
    // The instance belongs to the library, which outlives the program's use of it.
    ~IMediaLibraryApi() = default;
};
