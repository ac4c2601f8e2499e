/*
 * Expansion of the field lists <record>_FIELDS(F) into umts_record_desc objects.
 *
 * For a list X(RECORD, name) / X(UNION, name) of records written with the macros of
 * umts_sib_record_macros.h:
 *
 *   LIST(UMTS_DESC_DECLARE)   declares umts_desc_<name> and ties the type to it, so that
 *                             records may refer to each other in any order;
 *   LIST(UMTS_DESC_DEFINE)    defines umts_desc_<name> from name##_FIELDS.
 *
 * Everything is a constant: the descriptions cost nothing at start-up. The field arrays stay
 * inside the library (hidden), so that loading it looks up no symbol for each of them. A
 * RECORD, UNION or ARRAY entry whose type has no description fails to compile.
 */
#ifndef UMTS_RECORD_DESC_DEFINE_H
#define UMTS_RECORD_DESC_DEFINE_H

#include <cstddef>
#include <type_traits>

#include "umts_record_desc.h"

namespace umts_desc_detail {

template <class T>
constexpr uint8_t int_signed() {
  if constexpr (std::is_enum<T>::value) {
    return std::is_signed<typename std::underlying_type<T>::type>::value ? 1 : 0;
  } else {
    return std::is_signed<T>::value ? 1 : 0;
  }
}

/* Description of an entry type: null for integers, the record's own otherwise. */
template <class T>
struct desc_of {
  static_assert(std::is_integral<T>::value || std::is_enum<T>::value,
                "a record type without a description: is it in the record list?");
  static constexpr const umts_record_desc* get() { return nullptr; }
};

template <class T, class = void>
struct presence_of {
  static constexpr int32_t offset = -1;
  static constexpr uint32_t size = 0;
};
template <class T>
struct presence_of<T, std::void_t<decltype(T::presence_bitmask)>> {
  static constexpr int32_t offset = static_cast<int32_t>(offsetof(T, presence_bitmask));
  static constexpr uint32_t size = sizeof(T::presence_bitmask);
};

}  // namespace umts_desc_detail

#define UMTS_DESC_DECLARE(kind, rec)                                                      \
  extern const umts_record_desc umts_desc_##rec;                                          \
  namespace umts_desc_detail {                                                            \
  template <>                                                                             \
  struct desc_of<rec> {                                                                   \
    static constexpr const umts_record_desc* get() { return &umts_desc_##rec; }          \
  };                                                                                      \
  }

/* One umts_field_desc, inside a scope where `self` is the record being described. */
#define UMTS_DESC_FIELD(kind, type, name, dim, cond, aux) UMTS_DESC_FIELD_##kind(type, name, dim, cond, aux),

#define UMTS_DESC_FIELD_COMMON(kindval, type, name, dimval, cond, desc)                     \
  #name, kindval, static_cast<uint32_t>(offsetof(self, name)),                              \
      static_cast<uint32_t>(sizeof(self::name)), static_cast<uint32_t>(alignof(type)),      \
      static_cast<uint32_t>(sizeof(type)), static_cast<uint32_t>(dimval),                   \
      umts_desc_detail::int_signed<type>(), desc, (cond)

#define UMTS_DESC_NO_AUX nullptr, -1, 0u
#define UMTS_DESC_AUX(aux) #aux, static_cast<int32_t>(offsetof(self, aux)), static_cast<uint32_t>(sizeof(self::aux))
/* The field's name as the JSON writes it after another field, with its length. */
#define UMTS_DESC_KEY(name) ",\"" #name "\":", static_cast<uint32_t>(sizeof(",\"" #name "\":") - 1)

#define UMTS_DESC_FIELD_SCALAR(type, name, dim, cond, aux) \
  {UMTS_DESC_FIELD_COMMON(umts_field_scalar, type, name, 1, cond, nullptr), UMTS_DESC_NO_AUX, UMTS_DESC_KEY(name)}
#define UMTS_DESC_FIELD_BOOL(type, name, dim, cond, aux) \
  {UMTS_DESC_FIELD_COMMON(umts_field_bool, type, name, 1, cond, nullptr), UMTS_DESC_NO_AUX, UMTS_DESC_KEY(name)}
#define UMTS_DESC_FIELD_RECORD(type, name, dim, cond, aux)                                            \
  {UMTS_DESC_FIELD_COMMON(umts_field_record, type, name, 1, cond, umts_desc_detail::desc_of<type>::get()), \
   UMTS_DESC_NO_AUX, UMTS_DESC_KEY(name)}
#define UMTS_DESC_FIELD_UNION(type, name, dim, cond, aux)                                            \
  {UMTS_DESC_FIELD_COMMON(umts_field_union, type, name, 1, cond, umts_desc_detail::desc_of<type>::get()), \
   UMTS_DESC_AUX(aux), UMTS_DESC_KEY(name)}
#define UMTS_DESC_FIELD_ARRAY(type, name, dim, cond, aux)                                            \
  {UMTS_DESC_FIELD_COMMON(umts_field_array, type, name, dim, cond, umts_desc_detail::desc_of<type>::get()), \
   UMTS_DESC_AUX(aux), UMTS_DESC_KEY(name)}
#define UMTS_DESC_FIELD_BYTES(type, name, dim, cond, aux) \
  {UMTS_DESC_FIELD_COMMON(umts_field_bytes, type, name, dim, cond, nullptr), UMTS_DESC_NO_AUX, UMTS_DESC_KEY(name)}

#define UMTS_DESC_DEFINE(kind, rec)                                                            \
  namespace umts_desc_detail {                                                                 \
  struct __attribute__((visibility("hidden"))) fields_##rec {                                  \
    typedef rec self;                                                                          \
    static constexpr umts_field_desc list[] = {rec##_FIELDS(UMTS_DESC_FIELD)};                 \
  };                                                                                           \
  }                                                                                            \
  const umts_record_desc umts_desc_##rec = {                                                   \
      #rec,                                                                                    \
      static_cast<uint32_t>(sizeof(rec)),                                                      \
      static_cast<uint32_t>(alignof(rec)),                                                     \
      std::is_union<rec>::value ? uint8_t(1) : uint8_t(0),                                     \
      std::is_union<rec>::value ? -1 : umts_desc_detail::presence_of<rec>::offset,             \
      std::is_union<rec>::value ? 0u : umts_desc_detail::presence_of<rec>::size,               \
      static_cast<uint32_t>(sizeof(umts_desc_detail::fields_##rec::list) / sizeof(umts_field_desc)), \
      umts_desc_detail::fields_##rec::list};

#endif /* UMTS_RECORD_DESC_DEFINE_H */
