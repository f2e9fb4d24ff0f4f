#include "platform/web/gl/Matrices.h"

namespace quorva::web {

namespace {

Matrix product(const Matrix& a, const Matrix& b) {
    Matrix result{};
    for (unsigned int column = 0; column < 4; ++column)
        for (unsigned int k = 0; k < 4; ++k)
            for (unsigned int row = 0; row < 4; ++row)
                result[column * 4 + row] += a[k * 4 + row] * b[column * 4 + k];
    return result;
}

} // namespace

const Matrix Matrices::identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

void Matrices::pop() {
    if (current->size() > 1) current->pop_back();
    isCombined = false;
}

void Matrices::load(const Matrix& matrix) {
    current->back() = matrix;
    isCombined = false;
}

void Matrices::multiply(const Matrix& matrix) {
    load(product(current->back(), matrix));
}

Vertex Matrices::transform(float x, float y, float z) {
    if (!isCombined) combined = product(projection.back(), model.back());
    isCombined = true;
    const Matrix& m = combined;
    return {m[0] * x + m[4] * y + m[8] * z + m[12], m[1] * x + m[5] * y + m[9] * z + m[13],
            m[2] * x + m[6] * y + m[10] * z + m[14], m[3] * x + m[7] * y + m[11] * z + m[15]};
}

} // namespace quorva::web
