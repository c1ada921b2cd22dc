// SPDX-License-Identifier: MIT
// Answers requests for tags from a program that keeps vexltags-ctags running.
#include "ctags/interactive.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "base/version.h"
#include "ctags/indexing.h"
#include "ctags/messages.h"
#include "ctags/text_file.h"
#include "driver/process.h"
#include "output/dumper.h"
#include "thorough/session.h"

namespace vexltags::ctags {
namespace {

using Json = nlohmann::ordered_json;

/// The longest request, without its newline, that other programs of this kind accept is 1,022
/// bytes. More is accepted, but not without a limit.
constexpr std::size_t kLongestRequest = 65536;

class Server {
 public:
  explicit Server(const Settings& settings) : settings(settings), options(IndexerOptions()) {}

  int Run() {
    Send({{"_type", "program"}, {"name", "Universal Ctags"}, {"version", kVersion}});
    std::string line;
    while (!hasEnded && Flush() && ReadLine(line)) {
      if (line.find_first_not_of(" \t\r") != std::string::npos) Answer(line);
    }
    if (Flush()) return 0;
    return Fail("cannot write standard output");
  }

 private:
  static bool Flush() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

  static void Send(const Json& object) {
    const std::string text = object.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
    std::fwrite(text.data(), 1, text.size(), stdout);
  }

  static void SendError(const std::string& message, bool isFatal) {
    Send({{"_type", "error"}, {"message", message}, {isFatal ? "fatal" : "warning", true}});
  }

  static void SendCompleted() { Send({{"_type", "completed"}, {"command", "generate-tags"}}); }

  /// Reads a line without its newline. Returns false at the end of the input.
  bool ReadLine(std::string& line) {
    line.clear();
    for (int c = std::getchar(); c != EOF; c = std::getchar()) {
      if (c == '\n') return true;
      if (line.size() == kLongestRequest) {
        SendError("request too long", true);
        hasEnded = true;
        return false;
      }
      line += static_cast<char>(c);
    }
    return !line.empty();
  }

  void Answer(const std::string& line) {
    const Json request = Json::parse(line, nullptr, false);
    if (!request.is_object()) return SendError("invalid json", true);
    const auto command = request.find("command");
    if (command == request.end() || !command->is_string()) {
      return SendError("command name not found", true);
    }
    if (*command != "generate-tags") return SendError("unknown command name", true);
    const auto name = request.find("filename");
    if (name == request.end() || !name->is_string()) return SendError("invalid request", true);
    const std::string path = name->get<std::string>();
    const auto size = request.find("size");
    std::string text;
    if (size != request.end()) {
      if (!size->is_number_unsigned() || size->get<std::uint64_t>() > UINT32_MAX) {
        return SendError("invalid request", true);
      }
      if (!ReadBytes(size->get<std::size_t>(), text)) {
        hasEnded = true;
        return SendError("input ended before the contents of \"" + path + "\"", true);
      }
    } else if (settings.interactive == Interactive::kSandbox) {
      return SendError(
          "invalid request in sandbox submode: reading file contents from a file is limited", true);
    } else if (const int reason = ReadText(path, text); reason != 0) {
      Send({{"_type", "error"},
            {"message", "cannot open input file \"" + path + "\""},
            {"warning", true},
            {"errno", reason},
            {"perror", std::strerror(reason)}});
      return SendCompleted();
    }
    SendTags(path, text);
    SendCompleted();
  }

  /// Reads `count` bytes. Makes room as they come, since the number is only a claim.
  static bool ReadBytes(std::size_t count, std::string& text) {
    constexpr std::size_t kStep = 1 << 20;
    while (text.size() < count) {
      const std::size_t step = std::min(count - text.size(), kStep);
      const std::size_t old = text.size();
      text.resize(old + step);
      const std::size_t got = std::fread(text.data() + old, 1, step, stdin);
      if (got < step) return false;
    }
    return true;
  }

  void SendTags(const std::string& path, const std::string& text) {
    const Language* language = LanguageBySettings(path, settings);
    if (language == nullptr) language = LanguageOfFirstLine(text);
    if (language == nullptr) return;
    // Each file is indexed on its own: what one defines does not change the tags of another, and
    // what it includes is not read.
    std::vector<std::string> learnt;
    if (IndexOf(*language) <= kObjectiveC) learnt.push_back(path);
    thorough::SessionSources sources;
    sources.text = [&text](const std::string&, bool) {
      return std::optional<std::string_view>(text);
    };
    thorough::Session session(learnt, sources);
    Indexer indexer(options, session);
    Dumper dumper;
    if (!indexer.IndexText(path, std::string(language->probePath), text, dumper)) {
      return SendError("input file \"" + path + "\" is too large", false);
    }
    const std::vector<std::string> lines = dumper.Lines();
    if (settings.forced == nullptr) language = &LanguageOfTags(*language, lines);
    if (!settings.languages[IndexOf(*language)]) return;
    WriteTags(MakeTags(lines, text, *language, IsHeader(path), DetailsOf(settings)), path,
              *language, settings, [](const std::string& tag, std::size_t /*nameLength*/) {
                std::fwrite(tag.data(), 1, tag.size(), stdout);
              });
  }

  const Settings& settings;
  Options options;
  bool hasEnded = false;
};

}  // namespace

int AnswerRequests(const Settings& settings) { return Server(settings).Run(); }

}  // namespace vexltags::ctags
