#include <GL/glew.h>

#include "Framework/Graphics/Renderer.h"

#include "Framework/Config.h"
#include "Framework/Constants.h"
#include "Framework/Entity.h"
#include "Framework/Files.h"
#include "Framework/GameInfo.h"
#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Draw.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/XErrors.h"
#include "Framework/Managers/ResourceManagerManager.h"

#include <SDL.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace quorva::graphics {

namespace {

constexpr std::size_t usual_renderables = 500; ///< room without an allocation
constexpr float background_grey = 0.105882F;   ///< very dark; red, green and blue alike
constexpr int fallback_width = 800, fallback_height = 600, fallback_depth = 32;

/// @return false, with a line on standard error, if there is no such mode
bool trySetVideoMode(int width, int height, int depth, Uint32 flags) {
    const XErrors errors;
    if (SDL_SetVideoMode(width, height, depth, flags) != nullptr) return true;
    if (errors.any()) { // no mode would do: the server or the driver has no OpenGL for us
        std::cerr << "No window with OpenGL can be opened. Is its driver installed?\n";
        std::exit(-1);
    }
    std::cerr << "Couldn't set the video mode: " << SDL_GetError() << '\n';
    return false;
}

void openVideoMode() {
    const auto& config = config::Config::Instance();
    const Uint32 flags = SDL_OPENGL | (config.getFullScreen() ? SDL_FULLSCREEN : 0U);
    if (!trySetVideoMode(config.getScreenWidth(), config.getScreenHeight(), config.getColourDepth(),
                         flags) &&
        !trySetVideoMode(fallback_width, fallback_height, fallback_depth, flags))
        std::exit(-1);
    // Nothing shows it again: it stays hidden in a window after full screen.
    if (config.getFullScreen()) SDL_ShowCursor(SDL_DISABLE);
    // Deliberately after SDL_SetVideoMode: too late for this context, which keeps SDL's defaults.
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
}

void setupState() {
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glClearColor(background_grey, background_grey, background_grey, 1.0F);
    glClearAccum(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_ACCUM_BUFFER_BIT);
    glCullFace(GL_BACK);
    draw::enableDepthTest();
    draw::enableBlending();
    draw::enableAlpha();
    draw::enableCulling();
    draw::setBlendMode(BLEND_STANDARD);
    draw::renderSmooth();
}

/// An insertion sort: stable, so that things of equal layer and depth keep the order in which
/// they arrived; in place; and quick, as only what has arrived since the last frame moves.
void sortInPlace(std::vector<RenderableThing*>& things) {
    const RenderObjectSort less;
    for (auto thing = things.begin(); thing != things.end(); ++thing)
        if (thing != things.begin() && less(*thing, *(thing - 1)))
            std::rotate(std::upper_bound(things.begin(), thing, *thing, less), thing, thing + 1);
}

void setIcon() {
    const std::string file = utility::regularOrNone("data/kov.ico");
    // A missing icon is a null surface, which SDL takes.
    SDL_Surface* const icon = SDL_LoadBMP_RW(SDL_RWFromFile(file.c_str(), "rb"), 1);
    SDL_WM_SetIcon(icon, nullptr);
    SDL_FreeSurface(icon);
}

void setupWindow() {
    const char* const title = GameInfo::Instance().title.c_str();
    SDL_WM_SetCaption(title, title);
    setIcon();
}

} // namespace

bool RenderObjectSort::operator()(const RenderableThing* a, const RenderableThing* b) const {
    return a->layer != b->layer ? a->layer < b->layer : a->depth < b->depth;
}

bool (*Renderer::drawsFrame)() = nullptr;

// Once in a run: a later video mode keeps caption and icon.
Renderer::Renderer(physics::PhysicsProcessor* physics_) : physics(physics_) {
    subscribe<messages::ResetVideo>(this);
    renderables.reserve(usual_renderables);
    // Some window managers look for the icon only when the window comes up. SDL takes none before
    // its video has started.
    if (SDL_WasInit(SDL_INIT_VIDEO) != 0) setIcon();
    setupVideo();
    glewInit();
    setupWindow();
}

void Renderer::setupVideo() {
    openVideoMode();
    CameraClass& camera = Camera::Instance();
    camera.setupProjection();
    camera.setupFrustum();
    setupState();
}

void Renderer::update() {
    sortInPlace(renderables);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    if (drawsFrame == nullptr || drawsFrame())
        for (RenderableThing* thing : renderables)
            thing->render();
    SDL_GL_SwapBuffers();
}

void Renderer::addEntity(Entity* entity) {
    for (RenderableThing* thing : entity->getGraphics()->things)
        if (thing->active) renderables.push_back(thing);
}

void Renderer::removeEntity(Entity* entity) {
    for (RenderableThing* thing : entity->getGraphics()->things)
        renderables.erase(std::remove(renderables.begin(), renderables.end(), thing),
                          renderables.end());
}

void Renderer::removeAllEntities() {
    renderables.clear();
}

void Renderer::receiveMessage(const messages::ResetVideo*) {
    setupVideo();
    // The context is a new one: what fonts had made in the old one has gone with it.
    resources::ResourceManagerManager::Instance().load(resources::system_scope);
}

} // namespace quorva::graphics
