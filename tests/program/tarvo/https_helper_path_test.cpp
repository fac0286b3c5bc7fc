#include "linux/https_helper_path.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(HTTPSHelperPath, IsBesideTheProgramBeforeTheInstalledOne) {
    const TemporaryFolder folder;
    folder.write("libexec/tarvo/tarvo-fetch", "installed");
    EXPECT_EQ(httpsHelperPath(folder.path("bin")), folder.path("libexec/tarvo/tarvo-fetch"));
    folder.write("bin/tarvo-fetch", "built");
    EXPECT_EQ(httpsHelperPath(folder.path("bin")), folder.path("bin/tarvo-fetch"));
}

TEST(HTTPSHelperPath, IsEmptyWhereThereIsNoFile) {
    const TemporaryFolder folder;
    folder.makeFolder("bin/tarvo-fetch");
    EXPECT_EQ(httpsHelperPath(folder.path("bin")), "");
}

} // namespace
} // namespace tarvo
