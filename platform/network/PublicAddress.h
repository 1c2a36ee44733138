// Which addresses of the network are somebody's public server: everything that belongs to this
// machine, to its own network or to no host at all is not. What a stranger's reply names must not
// lead the program to a router's or a printer's pages.

#pragma once

class QHostAddress;

namespace tomely {

/// True for an address that anybody on the internet may reach. An IPv6 address that carries an IPv4
/// address is judged by that one. The blocks are those of the special-purpose address registries of
/// IANA.
bool isPublicAddress(const QHostAddress& address);

} // namespace tomely
