#pragma once

#include <mutex>
#include <string>
#include <vector>

#include <velquin/Object.h>

namespace Velquin {

/// The declarations of the gateway's global parameters: which ones exist and what they are for. Any thread may call all
/// operations.
class VELQUIN_CORE_EXPORT ParameterInfoDB : public virtual Object {
public:
    /// Kinds of value.
    static constexpr int KIND_STRING = 1;

    struct ParameterInfo {
        std::string strName;
        int nKind;      ///< KIND_STRING
        bool bRequired; ///< the gateway doesn't start without it
        bool bReadOnly; ///< it can't change while the gateway runs
        bool bHidden;   ///< operators don't see it
        std::string strDescription;
    };

    static ParameterInfoDB& getNonConstInstance();

    /// All declarations, in the order in which they were made.
    /// @throws std::bad_alloc
    virtual std::vector<ParameterInfo> getParameters() const;
    /// Declares a parameter. False when the name is already declared: it keeps its first declaration.
    virtual bool addParameter( const char* in_szName, int in_nKind, bool in_bRequired, bool in_bReadOnly,
                               bool in_bHidden, const char* in_szDescription );

private:
    ParameterInfoDB() = default;

    mutable std::mutex m_mutex;
    std::vector<ParameterInfo> m_vecParameters;
};

} // namespace Velquin
