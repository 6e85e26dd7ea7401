// ryx::type::registry::detail::Scoped<T, R>: registers T for the life of a
// static object.
//
// Built during static initialisation after the registry it names, so it is
// destroyed before that registry and deregisters T from a registry that still
// exists. RYX_TYPE_REGISTRY_REGISTER(registry, T) declares one such object,
// named s_ryx_type_registry_register_ and the source line.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/type/name.hpp>
#include <ryx/type/registry/register.hpp>

#include <type_traits>

namespace ryx::type::registry::detail {

template <class T, class R>
class Scoped {
public:
  explicit Scoped(R& registry) : registry(&registry) { Register<T, R>(registry); }
  Scoped(Scoped const&) = delete;
  Scoped& operator=(Scoped const&) = delete;

  // A failure to lock here ends the process: a destructor cannot report it.
  ~Scoped() noexcept { registry->Deregister(hash::MurmurThree32::MakeData(Name<T>::Value)); }

private:
  R* registry;
};

}  // namespace ryx::type::registry::detail

#define RYX_TYPE_DETAIL_CONCAT2(a, b) a##b
#define RYX_TYPE_DETAIL_CONCAT(a, b) RYX_TYPE_DETAIL_CONCAT2(a, b)

// The type comes last so that a template argument list may contain commas.
#define RYX_TYPE_REGISTRY_REGISTER(REGISTRY, ...)                                           \
  static ::ryx::type::registry::detail::Scoped<__VA_ARGS__,                                 \
                                               std::remove_reference_t<decltype(REGISTRY)>> \
      RYX_TYPE_DETAIL_CONCAT(s_ryx_type_registry_register_, __LINE__)(REGISTRY)
