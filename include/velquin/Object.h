#pragma once

#include <velquin/Export.h>

namespace Velquin {

/// Virtual base of every model and serializer class. It makes them polymorphic, so that they can be destroyed and
/// downcast through any of their bases.
class VELQUIN_CORE_EXPORT Object {
public:
    Object() = default;
    Object( const Object& ) = default;
    Object& operator=( const Object& ) = default;
    virtual ~Object();
};

} // namespace Velquin
