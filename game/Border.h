#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Colour.h"
#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"

#include <boost/array.hpp>

class GLine;

/// The radar: the edge of the field in short segments, which light up as things come near from
/// outside, the brighter the nearer.
class Border : public quorva::Entity, public quorva::MessageInterface<quorva::messages::EndLevel> {
public:
    static constexpr unsigned int segment_count = 12; ///< of a side
    enum Side { side_left, side_top, side_right, side_bottom, side_count };

    Border();

    void process() override;
    void update() override {}
    void receiveMessage(const quorva::messages::EndLevel*) override { dead = true; }

    template <class T>
    using Segments = boost::array<boost::array<T, segment_count>, side_count>;

    Segments<GLine*> lines;                     ///< the graphics own them
    Segments<quorva::graphics::Colour> colours; ///< one for each segment: its alpha is its light

private:
    struct Field; ///< the view box, and where things are by it

    void addSegments(Side side, const quorva::math::Point& first, const quorva::math::Vector& along,
                     float lineWidth);
    void darken();
    void notice(const quorva::math::Point& p, const Field& field);
    void light(Side side, unsigned int index, double distance, double margin);
};
