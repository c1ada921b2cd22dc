// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#include "thorough/session.h"

namespace vexltags::thorough {

Session::Session(const Options& /*options*/, const std::vector<std::string>& /*paths*/) {}

Reading* Session::CFamily(const std::string& /*path*/) { return &cfamily; }

Reading* Session::Python(const std::string& /*path*/) { return &python; }

Reading* Session::Swift(const std::string& /*path*/) { return &swift; }

}  // namespace vexltags::thorough
