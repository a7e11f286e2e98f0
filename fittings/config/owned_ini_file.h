#ifndef FITTINGS_CONFIG_OWNED_INI_FILE_H_
#define FITTINGS_CONFIG_OWNED_INI_FILE_H_

#include <memory>

#include <fittings/platform/local_reg_store.h>

namespace fittings {

struct DestroyIniFile
{
    void operator()(CIniFile* ini) const { CLocalRegStore::DestroyIniFile(ini); }
};

using OwnedIniFile = std::unique_ptr<CIniFile, DestroyIniFile>;

}  // namespace fittings

#endif
