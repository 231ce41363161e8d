// Brings the provider's pictures into the picture cache and gives them the names that the library stores.
//
// A file is named by the hash of the provider's name for it, so it is fetched once. Only what begins like an
// image is kept, and files appear whole or not at all. Refers to the provider; any thread, several at once.
#pragma once

#include "IMetadataProvider.h"

class MetadataPictures final {
public:
    MetadataPictures(const QString &imageFolder, IMetadataProvider &provider);

    // The name in the cache; empty when there is no picture or it can't be had now.
    [[nodiscard]] QString fetch(const QString &providerName, PictureKind kind,
                                const MetadataCall &call) const;

    // Replaces the provider's names in a description. What is known to lie beside the film (an absolute path)
    // stays the better picture: nothing is fetched for it, and the field comes back empty.
    void localise(Description &description, PictureKind posterKind, const Description &known,
                  const MetadataCall &call) const;

    // ".jpg" and the like, told by the first bytes; empty for what is no image.
    [[nodiscard]] static QString suffixOf(const QByteArray &content);

private:
    const QString m_folder;
    IMetadataProvider &m_provider;
};
