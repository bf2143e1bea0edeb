#include <velquin/Object.h>

namespace Velquin {

Object::~Object() = default;

} // namespace Velquin
