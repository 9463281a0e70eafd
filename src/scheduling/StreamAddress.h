#pragma once

#include <QString>

// What an internet stream's address must be for the recording task to open it.
namespace StreamAddress {

// Empty when the address is a usable http or https address; otherwise the text that tells
// the user what is wrong.
QString Problem(const QString& address);

} // namespace StreamAddress
