// The popup in several languages. A process builds the table of colours only once, so each language needs its own
// process.

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <tests/support/process/child_process.h>

namespace {

using Lines = std::map<std::string, std::string>;

// Returns the lines that the probe prints in @a language. The key of a line is its first word. For the lines "name" and
// "hot", the key is the first two words.
Lines PopupIn(const std::string& language)
{
    Lines lines;
    for (const std::string& line : LinesOf(RunChild({COLOUR_LANGUAGE_PROBE, language}))) {
        std::size_t end = line.find(' ');
        const std::string first = line.substr(0, end);
        if (first == "name" || first == "hot")
            end = line.find(' ', end + 1);
        lines[line.substr(0, end)] = line.substr(end + 1);
    }
    return lines;
}

struct Size
{
    int width = 0;
    int height = 0;
};

Size SizeIn(const Lines& lines, const std::string& name)
{
    Size size;
    std::istringstream(lines.at(name)) >> size.width >> size.height;
    return size;
}

void ExpectNames(const Lines& lines, const std::array<const char*, 40>& names)
{
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(lines.at("name " + std::to_string(i)), names.at(i)) << i;
}

// Expects the popup to be as wide as its wider text requires, and both boxes to be as high as the higher text requires.
void ExpectSizeOfTexts(const Lines& lines)
{
    const Size automatic = SizeIn(lines, "automatic-size");
    const Size more = SizeIn(lines, "more-size");
    ASSERT_GT(more.width, 148);
    EXPECT_GT(more.width, automatic.width);
    EXPECT_EQ(SizeIn(lines, "window").width, more.width + 4);
    EXPECT_EQ(SizeIn(lines, "window").height, 2 * std::max(automatic.height, more.height) + 128);
}

// Expects that the boxes have the texts @a automatic and @a more, and that the popup has the size for these texts.
// Expects that @a red is the name of colour 16 and the text of this colour's tooltip.
void ExpectTexts(const Lines& lines, const char* automatic, const char* more, const char* red)
{
    EXPECT_EQ(lines.at("automatic"), automatic);
    EXPECT_EQ(lines.at("more"), more);
    EXPECT_EQ(lines.at("hot 16"), red);
    EXPECT_EQ(lines.at("hint"), red);
    ExpectSizeOfTexts(lines);
}

TEST(ColourLanguage, German)
{
    const Lines lines = PopupIn("de");
    ExpectNames(lines, {"Schwarz",    "Braun",       "Dunkles Olivgrün", "Dunkelgrün",   "Dunkles Blaugrün",
                        "Dunkelblau", "Indigo",      "Dunkelgrau",       "Dunkelrot",    "Orange",
                        "Dunkelgelb", "Grün",        "Blaugrün",         "Blau",         "Blaugrau",
                        "Grau 40",    "Rot",         "Hellorange",       "Limettengrün", "Meergrün",
                        "Aquamarin",  "Hellblau",    "Violett",          "Grau 50",      "Rosa",
                        "Gold",       "Gelb",        "Leuchtendes Grün", "Türkis",       "Himmelblau",
                        "Pflaume",    "Hellgrau",    "Zartrosa",         "Hellbraun",    "Hellgelb",
                        "Blassgrün",  "Blasstürkis", "Blassblau",        "Lavendel",     "Weiß"});
    ExpectTexts(lines, "Automatisch", "Weitere Farben...", "Rot");
}

TEST(ColourLanguage, Japanese)
{
    const Lines lines = PopupIn("ja");
    ExpectNames(lines, {"黒",
                        "茶",
                        "濃いオリーブグリーン",
                        "濃い緑",
                        "濃い青緑",
                        "濃い青",
                        "インディゴ",
                        "濃い灰色",
                        "濃い赤",
                        "オレンジ",
                        "濃い黄",
                        "緑",
                        "青緑",
                        "青",
                        "ブルーグレー",
                        "灰色 40",
                        "赤",
                        "薄いオレンジ",
                        "ライム",
                        "シーグリーン",
                        "アクアマリン",
                        "薄い青",
                        "紫",
                        "灰色 50",
                        "ピンク",
                        "ゴールド",
                        "黄",
                        "明るい緑",
                        "ターコイズ",
                        "スカイブルー",
                        "プラム",
                        "薄い灰色",
                        "ローズ",
                        "ベージュ",
                        "薄い黄",
                        "淡い緑",
                        "淡いターコイズ",
                        "淡い青",
                        "ラベンダー",
                        "白"});
    ExpectTexts(lines, "自動", "その他の色...", "赤");
}

// Without a catalogue for the language, the names are English.
TEST(ColourLanguage, Finnish)
{
    const Lines lines = PopupIn("fi");
    EXPECT_EQ(lines.at("name 0"), "Black");
    EXPECT_EQ(lines.at("name 35"), "Pale green ");
    ExpectTexts(lines, "Automatic", "More Colours...", "Red");
}

TEST(ColourLanguage, MakesTheWidth)
{
    const int german = SizeIn(PopupIn("de"), "window").width;
    const int japanese = SizeIn(PopupIn("ja"), "window").width;
    EXPECT_NE(german, japanese);
}

class ColourCatalogue : public testing::TestWithParam<const char*>
{
};

TEST_P(ColourCatalogue, NamesEveryColourAndBox)
{
    const Lines lines = PopupIn(GetParam());
    std::map<std::string, int> uses;
    for (int i = 0; i < 40; ++i) {
        const std::string& name = lines.at("name " + std::to_string(i));
        EXPECT_NE(name, "") << i;
        ++uses[name];
    }
    EXPECT_EQ(uses.size(), 40U);
    EXPECT_NE(lines.at("automatic"), "Automatic");
    EXPECT_NE(lines.at("more"), "More Colours...");
    EXPECT_NE(lines.at("name 35"), "Pale green ");
    ExpectSizeOfTexts(lines);
}

INSTANTIATE_TEST_SUITE_P(, ColourCatalogue,
                         testing::Values("ar", "cs", "de", "es", "fr", "it", "ja", "ko", "nl", "pl", "pt_BR", "ru",
                                         "tr", "uk", "zh_CN"),
                         [](const auto& info) { return info.param; });

}  // namespace
