#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Managers/TextureResources.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <FTGL/ftgl.h>
#include <boost/filesystem.hpp>

using namespace quorva;
using graphics::Colour;
using graphics::Font;
using resources::Property;
using resources::ResourceTraits;

namespace {

/// A scope of its own, with files of its own, beside the game's read-only data.
class ResourcesTest : public testing::Test {
protected:
    void SetUp() override {
        GameInfo::Instance().homeDirectory = ".kov";
        boost::filesystem::rename("data", "shipped"); // a link
        boost::filesystem::create_directories("data/level");
        fill("data/Colour.kov", "Base,1 0 0 1\nBase,0 1 0 1\nOther,0 0 1 1\n");
        fill("data/level/Colour.kov", "Base,0 0 0 1\nNew,1 1 1 1\n");
    }
    void TearDown() override {
        boost::filesystem::remove_all("data");
        boost::filesystem::rename("shipped", "data");
    }
    static float green(ResourceManager<Colour, true>& manager, const char* name) {
        return manager.getV(name).green();
    }
};

template <class T>
bool parse(std::string line, std::string& name, T& value) {
    return ResourceTraits<T>::parseLine(line, name, value);
}

template <class Value>
struct Line {
    const char* line;
    bool taken;
    const char* name;
    Value value;
};

template <class Resource, class Value>
using ValueOf = Value Resource::*;

template <class Resource, class Value>
void expectLines(ValueOf<Resource, Value> value, const std::vector<Line<Value>>& lines) {
    for (const Line<Value>& expected : lines) {
        std::string name;
        Resource resource;
        EXPECT_EQ(parse(expected.line, name, resource), expected.taken) << expected.line;
        EXPECT_EQ(name, expected.name) << expected.line;
        EXPECT_EQ(resource.*value, expected.value) << expected.line;
    }
}

} // namespace

TEST_F(ResourcesTest, GivesByNameAndMakesWhatIsMissing) {
    ResourceManager<Colour, true> manager;
    EXPECT_EQ(green(manager, "Base"), 1.0F) << "of two lines the last counts";
    Colour& unknown = manager.getV("Unknown");
    EXPECT_EQ(unknown.alpha(), 0.5F);
    unknown = graphics::colours::pink;
    EXPECT_EQ(&manager.getV("Unknown"), &unknown);
    EXPECT_EQ(green(manager, "Unknown"), 0.5F);
    resources::ResourceManagerManager::Instance().removeResourceManager(&manager);
}

TEST_F(ResourcesTest, ScopesShadowAndCloseForgetsBoth) {
    ResourceManager<Colour, true> manager;
    Colour* const held = &manager.getV("Base");
    manager.load("level");
    EXPECT_EQ(manager.filename, "data/level/Colour.kov");
    EXPECT_EQ(&manager.getV("Base"), held) << "what holds it goes on holding it";
    EXPECT_EQ(green(manager, "Base"), 0.0F);
    EXPECT_EQ(manager.shadowed["Base"].value.green(), 1.0F) << "the one displaced last";
    EXPECT_EQ(manager.shadowed["Base"].scope + manager.resources["Base"].scope, "Systemlevel");
    manager.close("none");
    EXPECT_EQ(manager.resources.size(), 3U);
    manager.close("level");
    EXPECT_EQ(manager.resources.count("Base") + manager.resources.count("New"), 0U);
    EXPECT_TRUE(manager.shadowed.empty());
    EXPECT_EQ(green(manager, "Base"), 1.0F) << "white, and not what stood there before";
    EXPECT_EQ(manager.getV("Base").alpha(), 0.5F);
    EXPECT_EQ(manager.getV("Other").blue(), 1.0F);
    resources::ResourceManagerManager::Instance().removeResourceManager(&manager);
}

TEST_F(ResourcesTest, TheirManagerKnowsEachOnce) {
    resources::ResourceManagerManagerClass all;
    ResourceManager<Colour, true> one;
    for (auto* manager : {&one, &one, static_cast<ResourceManager<Colour, true>*>(nullptr)})
        all.addResourceManager(manager);
    EXPECT_EQ(all.managers.size(), 1U);
    all.load("level");
    EXPECT_EQ(green(one, "New"), 1.0F);
    all.removeResourceManager(&one);
    all.removeResourceManager(&one);
    EXPECT_TRUE(all.managers.empty());
    resources::ResourceManagerManager::Instance().removeResourceManager(&one);
}

TEST(ResourceLines, OfColours) {
    expectLines(
        &Colour::components,
        {{"Border Colour,1 0.25 0.5 0.75", true, "Border Colour", {{1.0F, 0.25F, 0.5F, 0.75F}}},
         {"Border Colour ,1 0 1 1", true, "Border Colour ", {{1.0F, 0.0F, 1.0F, 1.0F}}},
         {"Wide,  1   0  0.5   1 \r", true, "Wide", {{1.0F, 0.0F, 0.5F, 1.0F}}},
         {"Short,1 0 1", false, "", {}},
         {"Long,1 0 1 1 1", false, "", {}},
         {"Two,1 0 1 1,x", false, "", {}},
         {"Words,red green blue alpha", true, "Words", {}},
         {"", false, "", {}}});
}

TEST(ResourceLines, OfPoints) {
    expectLines(&Property<math::Point>::value, {{"Place,1#2#3#", true, "Place", {1, 2, 3}},
                                                {" Place , 1#2#3#4#", true, "Place", {1, 2, 3}},
                                                {"Place,1#2#3", false, "", {}},
                                                {"Place,1#2#3#4#5#6", false, "", {}},
                                                {"", true, "", {}},
                                                {"a,b,c", true, "", {}}});
}

TEST(ResourceLines, OfFonts) {
    const struct {
        const char* line;
        bool taken;
        const char* errors;
    } cases[] = {
        {"Menu Font, x , VeraMono.ttf , Polygon ", true, ""},
        {"Menu Font,x,VeraMono.ttf,poly\x9b\xc2\x9b\xc3\xa4\xe4n", true,
         "Unknown font mode, defaulted to FR_POLYGON: poly\\x9b\\xc2\\x9b\xc3\xa4\\xe4n\n"},
        {"a,,VeraMono.ttf,Polygon", false, ""},
        {"a,x,no\x1bne.ttf,Polygon", true, "Couldn't load font: fonts/no\\x1bne.ttf\n"},
    };
    for (const auto& c : cases) {
        std::string name;
        Font value;
        EXPECT_EQ(errorsOf([&] { EXPECT_EQ(parse(c.line, name, value), c.taken) << c.line; }),
                  c.errors);
    }
}

TEST(ResourceLines, OfFontsInEachMode) {
    int i = 0;
    for (const std::string mode : {"Polygon", "Bitmap", "Pixmap", "Outline", "Texture"}) {
        std::string name;
        Font font;
        parse("Name,-,VeraMono.ttf," + mode, name, font);
        EXPECT_EQ(font.name + " " + name, "fonts/VeraMono.ttf Name");
        const FTFont& made = *font.font;
        EXPECT_NE(std::string(typeid(made).name()).find(mode + "Font"), std::string::npos);
        EXPECT_GT(font.getBoundingBox("text").right, 1.0) << mode;
        EXPECT_EQ(resources::makeFont("VeraMono.ttf", mode).mode, i);
        EXPECT_EQ(graphics::getStringFromFontRenderMode(font.mode), mode);
        EXPECT_EQ(font.mode, i++);
    }
    EXPECT_EQ(errorsOf([] {
                  EXPECT_EQ(graphics::getFontRenderModeFromString("texture"), 0);
                  const auto none = static_cast<graphics::FontRenderModeE>(5);
                  EXPECT_EQ(graphics::getStringFromFontRenderMode(none), "Polygon");
              }),
              "String Font Render Mode invalid in: Framework/Graphics/Font\n"
              "Font Render Mode invalid in: Framework/Graphics/Font\n");
    Font broken(graphics::FR_POLYGON, "fonts/none.ttf");
    EXPECT_TRUE(broken.loaded && broken.name.empty());
    EXPECT_EQ(broken.getBoundingBox("text").right, 0.0);
    EXPECT_EQ(Font().getBoundingBox("text").right, 1.0);
}

TEST(ResourceLines, OfMaterials) {
    const auto& colour = ColourManager::Instance().getV("Line Colour");
    using ColourOfMaterial = const Colour* graphics::Material::*;
    using FlagOfMaterial = bool graphics::Material::*;
    const struct {
        const char* key;
        ColourOfMaterial colour;
        FlagOfMaterial counts;
    } cases[] = {
        {"MAT_AMBIENT", &graphics::Material::ambient, &graphics::Material::hasAmbient},
        {"MAT_DIFFUSE", &graphics::Material::diffuse, &graphics::Material::hasDiffuse},
        {"MAT_SPECULAR", &graphics::Material::specular, &graphics::Material::hasSpecular},
        {"MAT_EMISSION", &graphics::Material::emissive, &graphics::Material::hasEmissive},
    };
    graphics::Material material;
    const auto take = [&material](std::string line) {
        return resources::parseSubLine(line, material);
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(material.*c.counts) << c.key;
        EXPECT_TRUE(take(std::string(" ") + c.key + " : Line Colour "));
        EXPECT_TRUE(material.*c.counts) << c.key;
        EXPECT_EQ(material.*c.colour, &colour) << c.key;
    }
    EXPECT_TRUE(take("MAT_SHININESS: 0.5") && take("MAT_NONE: 1"));
    EXPECT_EQ(material.shininess, 0.5F);
    EXPECT_FALSE(take("MAT_SHININESS") || take("MAT_SHININESS:1:2"));
}
