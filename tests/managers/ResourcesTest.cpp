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

TEST(Resources, AreGivenByNameAndShadowedByTheScopeLoadedLast) {
    // Files of its own, in place of the game's, which is a link.
    GameInfo::Instance().homeDirectory = ".kov";
    boost::filesystem::rename("data", "shipped");
    boost::filesystem::create_directories("data/level");
    fill("data/Colour.kov", "Base,1 0 0 1\nBase,0 1 0 1\nOther,0 0 1 1\n");
    fill("data/level/Colour.kov", "Base,0 0 0 1\nNew,1 1 1 1\n");
    ResourceManager<Colour, true> manager;
    Colour& held = manager.getV("Base");
    EXPECT_EQ(held.green(), 1.0F) << "of two lines the last counts";
    Colour& unknown = manager.getV("Unknown");
    EXPECT_EQ(unknown.alpha(), 0.5F);
    EXPECT_EQ(&manager.getV("Unknown"), &unknown);
    manager.load("level");
    EXPECT_EQ(&manager.getV("Base"), &held) << "what holds it goes on holding it";
    EXPECT_EQ(held.green(), 0.0F);
    EXPECT_EQ(manager.shadowed["Base"].value.green(), 1.0F) << "the one displaced last";
    manager.close("none");
    EXPECT_EQ(manager.resources.size(), 4U);
    manager.close("level");
    EXPECT_EQ(manager.resources.size(), 2U);
    EXPECT_TRUE(manager.shadowed.empty());
    EXPECT_EQ(manager.getV("Base").alpha(), 0.5F) << "not what stood there before";
    resources::ResourceManagerManager::Instance().removeResourceManager(&manager);
    boost::filesystem::remove_all("data");
    boost::filesystem::rename("shipped", "data");
}

TEST(ResourceLines, OfColours) {
    expectLines(
        &Colour::components,
        {{"Border Colour,1 0.25 0.5 0.75", true, "Border Colour", {{1.0F, 0.25F, 0.5F, 0.75F}}},
         {"Wide ,  1   0  0.5   1 \r", true, "Wide ", {{1.0F, 0.0F, 0.5F, 1.0F}}},
         {"Short,1 0 1", false, "", {}},
         {"Long,1 0 1 1 1", false, "", {}},
         {"Two,1 0 1 1,x", false, "", {}},
         {"", false, "", {}}});
}

TEST(ResourceLines, OfPoints) {
    expectLines(&Property<math::Point>::value, {{"Place,1#2#3#", true, "Place", {1, 2, 3}},
                                                {" Place , 1#2#3#4#", true, "Place", {1, 2, 3}},
                                                {"Place,1#2#3", false, "", {}},
                                                {"Place,1#2#3#4#5#6", false, "", {}},
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
        EXPECT_EQ(resources::makeFont("VeraMono.ttf", mode).mode, i);
        EXPECT_EQ(graphics::getStringFromFontRenderMode(font.mode), mode);
        EXPECT_EQ(font.mode, i++);
    }
    Font broken(graphics::FR_POLYGON, "fonts/none.ttf");
    EXPECT_TRUE(broken.loaded && broken.name.empty());
    EXPECT_EQ(broken.getBoundingBox("text").right, 0.0);
    EXPECT_EQ(Font().getBoundingBox("text").right, 1.0);
}

TEST(ResourceLines, OfMaterials) {
    using graphics::Material;
    const auto& colour = ColourManager::Instance().getV("Line Colour");
    Material material;
    for (const auto& [key, part, counts] :
         {std::tuple{"MAT_AMBIENT", &Material::ambient, &Material::hasAmbient},
          {"MAT_DIFFUSE", &Material::diffuse, &Material::hasDiffuse},
          {"MAT_SPECULAR", &Material::specular, &Material::hasSpecular},
          {"MAT_EMISSION", &Material::emissive, &Material::hasEmissive}}) {
        std::string line = std::string(" ") + key + " : Line Colour ";
        EXPECT_FALSE(material.*counts) << key;
        EXPECT_TRUE(resources::parseSubLine(line, material));
        EXPECT_TRUE(material.*counts) << key;
        EXPECT_EQ(material.*part, &colour) << key;
    }
    for (const auto& [text, taken] : {std::pair{"MAT_SHININESS: 0.5", true},
                                      {"MAT_NONE: 1", true},
                                      {"MAT_SHININESS", false},
                                      {"MAT_SHININESS:1:2", false}}) {
        std::string line = text;
        EXPECT_EQ(resources::parseSubLine(line, material), taken) << text;
    }
    EXPECT_EQ(material.shininess, 0.5F);
}
