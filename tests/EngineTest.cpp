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

std::string journal; ///< who is updated, and with a minus who loses all entities

struct Service : Component {
    explicit Service(
        char name_, std::function<void()> onUpdate_ = [] {})
        : name(name_), onUpdate(std::move(onUpdate_)) {}
    void update() override {
        journal += name;
        onUpdate();
    }
    void process() override {}
    void removeAllEntities() override { journal += {'-', name}; }

    char name;
    std::function<void()> onUpdate;
};

struct Note {};
struct Listener : MessageInterface<Note> {
    explicit Listener(std::function<void()> onNote_) : onNote(std::move(onNote_)) {}
    void receiveMessage(const Note*) override { onNote(); }
    std::function<void()> onNote;
};

} // namespace

TEST(EngineTest, SweepsComponentsByPositionWhileTheyComeAndGo) {
    EngineClass engine;
    const auto update = [&engine](std::vector<Component*> components) {
        engine.components = std::move(components); // these alone
        journal.clear();
        engine.update();
        return journal;
    };
    Service last('l'), added('a');
    Service changer('c', [&] {
        engine.delComponent(&changer);
        engine.addComponent(&added);
    });
    // After the change the last one stands at position 0, which has been, and the added at 1.
    EXPECT_EQ(update({&changer, &last}), "c-ca");

    Service emptier('e', [&] {
        for (Component* const c : {&last, &added, &emptier})
            engine.delComponent(c);
    });
    EXPECT_EQ(update({&emptier, &last, &added}), "e-l-a-e");

    std::vector<std::unique_ptr<Service>> crowd; // more than the list has room for
    Service crowder('m', [&] {
        for (int i = 0; i < 100; ++i)
            engine.addComponent(crowd.emplace_back(std::make_unique<Service>('n')).get());
    });
    EXPECT_EQ(update({&crowder}), "m");
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
        const auto refuse = [] { FAIL() << "in the same delivery"; };
        for (int i = 0; i < 300; ++i)
            bus.subscribe(crowd.emplace_back(std::make_unique<Listener>(refuse)).get());
    });
    Listener second([&] { ++received; });
    bus.subscribe(&first);
    bus.subscribe(&second);
    bus.publish(nullptr);
    EXPECT_EQ(received, 1);
}
