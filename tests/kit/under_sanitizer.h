// Whether the tests run under AddressSanitizer, where processes are large and start slowly.
#pragma once

namespace kit {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool UnderSanitizer = true;
#elif defined(__has_feature)
inline constexpr bool UnderSanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool UnderSanitizer = false;
#endif

}  // namespace kit
