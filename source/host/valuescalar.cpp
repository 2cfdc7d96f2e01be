#include "valuescalar.h"

#include <iterator>

namespace vnsi {

ValueNode::Kind ValueScalar::kind() const
{
    constexpr Kind kKinds[] = {
        Kind::Null, Kind::Bool, Kind::Int, Kind::Long, Kind::Long, Kind::Real, Kind::Text};
    static_assert(std::size(kKinds) + 1 == std::variant_size_v<Value>);
    return kKinds[m_value.index()];
}

} // namespace vnsi
