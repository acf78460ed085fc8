# What a build decides for good, as a source of the logic: ${build_settings_source}. A wrong value stops here, not in
# the hands of a user.
set(BRIMLE_UPDATE_FEED "" CACHE STRING "https address of the update feed; empty: no feed")
set(BRIMLE_UPDATE_KEY "" CACHE STRING "Ed25519 public key of the update feed, in base64 (scripts/sign_feed --public KEY)")
option(BRIMLE_PACKAGED "Updates come from a package manager" OFF)
set(BRIMLE_SUPPORT_ADDRESS "support@brimle.invalid" CACHE STRING "Where feedback is mailed to")

# No query and no fragment: the signature's address is the feed's with ".sig" behind it.
if(BRIMLE_UPDATE_FEED AND NOT BRIMLE_UPDATE_FEED MATCHES "^https://[A-Za-z0-9][A-Za-z0-9./:_~%-]*$")
  message(FATAL_ERROR "BRIMLE_UPDATE_FEED must be a plain https address, not '${BRIMLE_UPDATE_FEED}'")
endif()
string(LENGTH "${BRIMLE_UPDATE_KEY}" key_length)
if(BRIMLE_UPDATE_KEY AND NOT (BRIMLE_UPDATE_KEY MATCHES "^[A-Za-z0-9+/]*=$" AND key_length EQUAL 44))
  message(FATAL_ERROR "BRIMLE_UPDATE_KEY must be 32 bytes in base64, not '${BRIMLE_UPDATE_KEY}'")
endif()
if(BRIMLE_UPDATE_FEED AND NOT BRIMLE_UPDATE_KEY)
  message(FATAL_ERROR "BRIMLE_UPDATE_FEED needs BRIMLE_UPDATE_KEY: a feed that nobody signs is never believed")
endif()
if(NOT BRIMLE_SUPPORT_ADDRESS MATCHES "^[A-Za-z0-9.+_-]+@[A-Za-z0-9.-]+$")
  message(FATAL_ERROR "BRIMLE_SUPPORT_ADDRESS must be a mail address, not '${BRIMLE_SUPPORT_ADDRESS}'")
endif()

if(BRIMLE_PACKAGED)
  set(BRIMLE_PACKAGED_LITERAL true)
else()
  set(BRIMLE_PACKAGED_LITERAL false)
endif()
set(build_settings_source ${CMAKE_CURRENT_BINARY_DIR}/build_settings.cpp)
configure_file(platform/build_settings.cpp.in ${build_settings_source} @ONLY)
