// The printed list of fixed items, by the template mz_fixni_polozky.fr3.
#pragma once

#include <string>
#include <vector>

#include "report/document.h"
#include "shell/session.h"
#include "workers/fixni_seznam.h"

namespace workers {

/// The rows in their order; `omezeni` is the sentence of the restriction. Throws base::ChybaDat
/// when the template is missing or unsound.
report::Document sestava_fixnich(const shell::Session& session,
                                 const std::vector<RadekFixnich>& vety, TrideniFixnich trideni,
                                 const std::string& omezeni);

}  // namespace workers
