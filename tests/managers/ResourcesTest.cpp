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

template <class T>
std::string parsed(const char* line) {
    std::string name;
    T value;
    if (!parse(line, name, value)) return "refused";
    std::ostringstream out;
    if constexpr (std::is_same_v<T, Colour>)
        out << value.red() << ' ' << value.green() << ' ' << value.blue() << ' ' << value.alpha();
    else
        out << value.value.x << ' ' << value.value.y << ' ' << value.value.z;
    return name + '=' + out.str();
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

TEST(ResourceLines, OfColoursAndPoints) {
    for (const auto& [line, result] :
         {std::pair{"Border Colour,1 0.25 0.5 0.75", "Border Colour=1 0.25 0.5 0.75"},
          {"Wide ,  1   0  0.5   1 \r", "Wide =1 0 0.5 1"},
          {"Short,1 0 1", "refused"},
          {"Long,1 0 1 1 1", "refused"},
          {"", "refused"}})
        EXPECT_EQ(parsed<Colour>(line), result) << line;
    for (const auto& [line, result] : {std::pair{"Place,1#2#3#", "Place=1 2 3"},
                                       {" Place , 1#2#3#4#", "Place=1 2 3"},
                                       {"Place,1#2#3", "refused"},
                                       {"Place,1#2#3#4#5#6", "refused"},
                                       {"a,b,c", "=0 0 0"}})
        EXPECT_EQ(parsed<Property<math::Point>>(line), result) << line;
}

TEST(ResourceLines, OfFonts) {
    const struct {
        const char* line;
        bool taken;
        const char* errors;
    } cases[] = {
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
        EXPECT_EQ(graphics::getStringFromFontRenderMode(font.mode), mode);
        EXPECT_EQ(font.mode, i++);
    }
}

TEST(ResourceLines, OfMaterials) {
    using graphics::Material;
    const auto& colour = ColourManager::Instance().getV("Line Colour");
    Material material;
    const auto isTaken = [&](std::string line) { return resources::parseSubLine(line, material); };
    for (const auto& [key, part, counts] :
         {std::tuple{"MAT_AMBIENT", &Material::ambient, &Material::hasAmbient},
          {"MAT_DIFFUSE", &Material::diffuse, &Material::hasDiffuse},
          {"MAT_SPECULAR", &Material::specular, &Material::hasSpecular},
          {"MAT_EMISSION", &Material::emissive, &Material::hasEmissive}}) {
        EXPECT_TRUE(isTaken(std::string(" ") + key + " : Line Colour ")) << key;
        EXPECT_TRUE(material.*counts) << key;
        EXPECT_EQ(material.*part, &colour) << key;
    }
    EXPECT_TRUE(isTaken("MAT_SHININESS: 0.5"));
    EXPECT_FALSE(isTaken("MAT_SHININESS:1:2"));
    EXPECT_EQ(material.shininess, 0.5F);
}
