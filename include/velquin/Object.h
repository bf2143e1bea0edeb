#pragma once

#include <velquin/Export.h>

namespace Velquin {

/// Virtual base of every model and serializer class. It makes them polymorphic: any of their bases can destroy and
/// downcast them.
class VELQUIN_CORE_EXPORT Object {
public:
    Object() = default;
    Object( const Object& ) = default;
    Object& operator=( const Object& ) = default;
    virtual ~Object();
};

} // namespace Velquin
