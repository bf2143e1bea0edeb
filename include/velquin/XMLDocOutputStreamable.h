#pragma once

#include <ostream>

#include <velquin/Object.h>

struct _xmlDoc;

namespace Velquin {

/// An object that can be written to a stream.
class VELQUIN_CORE_EXPORT OutputStreamable : public virtual Object {
public:
    /// Writes the object. Yields false when it can't be written; the stream may then hold a part.
    virtual bool writeTo( std::ostream& inout_stream ) const = 0;
};

/// Writes the object; sets the stream's failbit when it can't.
VELQUIN_CORE_EXPORT std::ostream& operator<<( std::ostream& inout_stream, const OutputStreamable& in_object );

/// An object that can fill an XML document.
class VELQUIN_CORE_EXPORT XMLDocOutputStreamable : public virtual Object {
protected:
    /// Fills the empty document. Yields false when it can't; the document may then hold a part.
    virtual bool writeXML( _xmlDoc* in_pDocument ) const = 0;
};

/// Writes the document that writeXML fills: XML, indented, UTF-8.
class VELQUIN_CORE_EXPORT XMLSTLDocOutputStreamableImpl : public virtual XMLDocOutputStreamable,
                                                          public virtual OutputStreamable {
public:
    /// Writes the whole document or, when it can't be made, nothing.
    bool writeTo( std::ostream& inout_stream ) const override;
};

} // namespace Velquin
