#include "ui/elements/card_background.h"

#include "support/painted_widget.h"
#include "ui/style/theme.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(CardBackground, PadsItsContentByTwelve) {
    auto* content = new QWidget;
    content->setMinimumSize(50, 20);
    CardBackground card(content, nullptr);
    EXPECT_EQ(card.minimumSizeHint(), QSize(74, 44));
}

TEST(CardBackground, DrawsRoundedCardMaterial) {
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        CardBackground card;
        card.setPalette(palette);
        const QImage image = painted(card, {80, 60});
        EXPECT_EQ(image.pixel(40, 30), Theme(palette).card().rgb());
        EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    }
}

} // namespace tarvo::ui
