#include "base/kodova_stranka.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "base/text.h"

namespace {

TEST(KodovaStranka, CeskaPismenaMajiSveBajty) {
    EXPECT_EQ(base::do_1250("Žluťoučký kůň €"), "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2 \x80");
    EXPECT_EQ(base::z_1250("\x8A\x9A\xD8\xF8\xCC\xEC\xA0"), "ŠšŘřĚě\u00A0");
}

TEST(KodovaStranka, ZnakMimoStrankuNeboRozbityTextSeNeprevede) {
    for (const char* text : {"α", "😀", "\u0081", "\uFFFD", "k\xF9\xF2", "å"}) {
        EXPECT_FALSE(base::je_v_1250(text)) << text;
        EXPECT_FALSE(base::do_1250(text)) << text;
    }
}

TEST(KodovaStranka, BajtBezZnakuJeNahradniZnak) {
    for (const char* bajt : {"\x81", "\x83", "\x88", "\x90", "\x98"})
        EXPECT_EQ(base::z_1250(bajt), "\uFFFD");
}

RC_GTEST_PROP(KodovaStranka, CoSePrecteTimSeZapiseZpet, (const std::string& bajty)) {
    const std::string text = base::z_1250(bajty);
    RC_ASSERT(base::je_utf8(text));
    RC_ASSERT(base::pocet_znaku(text) == bajty.size());
    const bool uplny = text.find("\uFFFD") == std::string::npos;
    RC_ASSERT(base::je_v_1250(text) == uplny);
    RC_ASSERT(base::do_1250(text) == (uplny ? std::optional(bajty) : std::nullopt));
}

}  // namespace
