// Performances and the cost centres allowed for each, from `Vykony` of the accounting folder.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"

namespace workers {

/// One text a performance, in the order of `by_vykon`: its three digits, ten cost centres of two
/// digits, and the range of centres from and to, two digits each; ".." stands where the table holds
/// -1.
std::vector<std::string> Nacti_vykony(shell::Session& session);

/// True when the performance is on the list by its three digits (a blank counts as 000); `index` is
/// then its place there, from 0, and stays untouched otherwise.
bool vykon_souhlasi(const std::vector<std::string>& vykony, std::string_view text, int& index);

/// True when the cost centre (a blank counts as 00) is among the ten of the performance or within
/// its range, both ends included.
bool stredisko_souhlasi(std::string_view stredisko, std::string_view povoleny_vykon);

}  // namespace workers
