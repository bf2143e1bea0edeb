#pragma once

#include <utility>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/TSHandle.h>

#include "SourcePlace.h"

namespace Velquin::Pstn {

/// Stores a handle or a reference in a field of the model. Refuses null, with an assertion of that text.
template <class TPointer>
bool setNotNull( TPointer& out_pField, TPointer in_pNew, const char* in_szAssertion,
                 SourcePlace in_where = SourcePlace::current() ) noexcept {
    const Assertion assertion( !in_pNew.isNull(), in_szAssertion, in_where.szFile, in_where.nLine );
    if ( assertion )
        out_pField = std::move( in_pNew );
    return static_cast<bool>( assertion );
}

/// Takes ownership of an object for a field of the model. When memory ends, it deletes the object, leaves the field
/// alone, logs an ERROR and yields false.
/// @param in_szAssertion text of the assertion that refuses null; if it is null, a null object leaves the field empty
template <class T>
bool setOwned( TSHandle<T>& out_hField, T* in_pNew, const Logger& in_logger, const char* in_szAssertion = nullptr,
               SourcePlace in_where = SourcePlace::current() ) noexcept {
    try {
        TSHandle<T> hNew( in_pNew );
        if ( in_szAssertion )
            return setNotNull( out_hField, std::move( hNew ), in_szAssertion, in_where );
        out_hField = std::move( hNew );
        return true;
    } catch ( ... ) {
        reportCurrentException( in_logger, in_where.szOperation, in_where.szFile, in_where.nLine );
        return false;
    }
}

} // namespace Velquin::Pstn
