#include "update/update_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::Optional;

TEST(UpdateInfo, ReadsAllKeysAndPassesOverOthers) {
    EXPECT_THAT(
        parseUpdateManifest(
            R"({"size":[1,2],"notes":"Rychlejší","url":"https://tarvo.example/download","version":"1.4.2"})"),
        Optional(UpdateInfo{"1.4.2", "https://tarvo.example/download", "Rychlejší"}));
}

TEST(UpdateInfo, HasNoNotesWhenTheManifestHasNone) {
    const UpdateInfo expected{"1.4.2", "https://tarvo.example", std::nullopt};
    EXPECT_THAT(parseUpdateManifest(R"({"version":"1.4.2","url":"https://tarvo.example"})"),
                Optional(expected));
    EXPECT_THAT(parseUpdateManifest(R"({"version":"1.4.2","url":"https://tarvo.example","notes":null})"),
                Optional(expected));
}

TEST(UpdateInfo, RefusesWhatIsNoManifest) {
    for (const auto* text :
         {"", "null", "[]", "<html></html>", R"(["1.4.2"])", R"({"version":"1.4.2"})",
          R"({"url":"https://a.example"})", R"({"version":1.4,"url":"https://a.example"})",
          R"({"version":"1","url":null})", R"({"version":"1","url":"https://a.example","notes":5})",
          R"({"version":"1","url":"https://a.example")", R"({"version":"1","url":"https://a.example"} x)"}) {
        EXPECT_FALSE(parseUpdateManifest(text)) << text;
    }
}

} // namespace
} // namespace tarvo
