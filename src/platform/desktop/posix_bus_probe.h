// Whether a message bus hangs: something takes connections at its address and never says a word.
//
// Qt waits long for a bus that hangs, at the start for minutes, and each of its buses waits behind the one
// before. So a bus is asked here first, by a connection of our own that is closed again. What cannot be asked
// this way, an address that is no Unix socket or that has escaped characters in it, counts as not hanging.
//
// Example of an address: "unix:path=/run/user/1000/bus,guid=9a81;unix:abstract=/tmp/dbus-x"
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace brimle {

/// Waits for the bus up to `patience`. False also where nobody is there.
bool busHangs(std::string_view addresses, std::chrono::milliseconds patience);

/// Where the program's environment says that the bus of its user's session is; empty where nowhere.
std::string sessionBusAddresses();
/// Where the system's own bus is.
std::string systemBusAddresses();

}  // namespace brimle
