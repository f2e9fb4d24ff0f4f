#include "Framework/Engine.h"

#include "Framework/Component.h"
#include "Framework/MessageHandler.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace quorva;

namespace {

std::vector<std::string> journal;

struct Service : Component {
    explicit Service(std::string name_, std::function<void()> onUpdate_ = {})
        : name(std::move(name_)), onUpdate(std::move(onUpdate_)) {}
    void update() override {
        journal.push_back("update " + name);
        if (onUpdate) onUpdate();
    }
    void process() override {}
    void removeAllEntities() override { journal.push_back(name + " - all"); }

    std::string name;
    std::function<void()> onUpdate;
};

using Journal = std::vector<std::string>;

class EngineTest : public testing::Test {
protected:
    /// What an update does with these components alone.
    Journal update(std::initializer_list<Component*> components) {
        engine.components.clear();
        for (Component* const component : components)
            engine.addComponent(component);
        journal.clear();
        engine.update();
        return journal;
    }
    void TearDown() override { engine.components.clear(); } // the test's own, gone by now

    EngineClass engine;
};

struct Note {};
struct Listener : MessageInterface<Note> {
    explicit Listener(std::function<void()> onNote_) : onNote(std::move(onNote_)) {}
    void receiveMessage(const Note*) override { onNote(); }
    std::function<void()> onNote;
};

} // namespace

TEST_F(EngineTest, SweepsComponentsByPositionWhileTheyComeAndGo) {
    Service last("last"), added("added");
    Service changer("changer", [&] {
        engine.delComponent(&changer);
        engine.addComponent(&added);
    });
    // After the change "last" stands at position 0, which has been, and "added" at 1.
    EXPECT_EQ(update({&changer, &last}),
              (Journal{"update changer", "changer - all", "update added"}));

    Service emptier("emptier", [&] {
        for (Component* const c : {&last, &added, &emptier})
            engine.delComponent(c);
    });
    EXPECT_EQ(update({&emptier, &last, &added}),
              (Journal{"update emptier", "last - all", "added - all", "emptier - all"}));
    EXPECT_TRUE(engine.components.empty());

    std::vector<std::unique_ptr<Service>> crowd; // more than the list has room for
    Service crowder("crowder", [&] {
        for (int i = 0; i < 100; ++i) {
            crowd.push_back(std::make_unique<Service>("late"));
            engine.addComponent(crowd.back().get());
        }
    });
    EXPECT_EQ(update({&crowder}), (Journal{"update crowder"}));
}

TEST(MessageBus, DeliversInOrderOfSubscriptionOncePerSubscriber) {
    MessageHandlerClass<Note> bus;
    std::string order;
    Listener a([&] { order += 'a'; }), b([&] { order += 'b'; });
    bus.subscribe(&b);
    bus.subscribe(&a);
    bus.subscribe(&b);
    bus.publish(nullptr);
    bus.unsubscribe(&b);
    bus.publish(nullptr);
    EXPECT_EQ(order, "baa");
}

TEST(MessageBus, TakesMoreSubscribersDuringADeliveryThanItHasRoomFor) {
    MessageHandlerClass<Note> bus;
    std::vector<std::unique_ptr<Listener>> crowd;
    int received = 0;
    Listener first([&] {
        for (int i = 0; i < 300; ++i) {
            crowd.push_back(std::make_unique<Listener>([] { FAIL() << "in this delivery"; }));
            bus.subscribe(crowd.back().get());
        }
    });
    Listener second([&] { ++received; });
    bus.subscribe(&first);
    bus.subscribe(&second);
    bus.publish(nullptr);
    EXPECT_EQ(received, 1);
}
