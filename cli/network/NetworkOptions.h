// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace mivo::cli {

/// What stands after `mivo roadmap`, `mivo vote` and `mivo unvote`, as it was typed.
struct RoadmapOptions {
  std::string feature = {};  ///< an id; for voting only
  std::string tally = "http://127.0.0.1:8787", namespaceName = "mivo";
  std::string locale = {}, format = "text";
};

/// What stands after `mivo doctor`, as it was typed; empty where it was not.
struct DoctorOptions {
  std::string database, tally, format = "text";
};

struct NetworkOptions {
  RoadmapOptions roadmap;
  DoctorOptions doctor;
};

struct NetworkCommands {
  const CLI::App *doctor, *roadmap, *vote, *unvote;

  /// Whether it is one of them that was asked for.
  bool areParsed() const { return doctor->parsed() || roadmap->parsed() || vote->parsed() || unvote->parsed(); }
};

/// Adds the commands. `options` must outlive the parsing.
NetworkCommands addNetworkCommands(CLI::App& program, NetworkOptions& options);

}  // namespace mivo::cli
