#pragma once

#include <array>
#include <vector>

namespace quorva::web {

using Matrix = std::array<float, 16>; ///< by columns, as GL has it

/// In clip space, or before that with w = 1.
struct Vertex {
    float x, y, z, w;
};

/// GL's two stacks of matrices, and their product.
class Matrices {
public:
    void choose(bool projection_) { current = projection_ ? &projection : &model; }
    void push() { current->push_back(current->back()); }
    void pop(); ///< the last one stays
    void load(const Matrix& matrix);
    void multiply(const Matrix& matrix);
    const Matrix& ofProjection() const { return projection.back(); }

    Vertex transform(float x, float y, float z);

    static const Matrix identity;

private:
    std::vector<Matrix> model{identity}, projection{identity};
    std::vector<Matrix>* current = &model;
    Matrix combined = identity;
    bool isCombined = true; ///< else a matrix has changed since
};

} // namespace quorva::web
