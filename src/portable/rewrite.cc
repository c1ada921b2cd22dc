// SPDX-License-Identifier: MIT
// Reads line by line. Writes an unsorted file while reading, any other file at the end.
#include "portable/rewrite.h"

#include <climits>
#include <cstdlib>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "portable/portable_order.h"
#include "portable/portable_path.h"
#include "portable/swift_scopes.h"
#include "portable/tag_line.h"

namespace vexltags {
namespace {

constexpr std::string_view kPseudoTag = "!_";
constexpr std::string_view kFormat = "!_TAG_FILE_FORMAT";
constexpr std::string_view kSorted = "!_TAG_FILE_SORTED";

/// The maximum length of a file field: the longest path with every byte escaped.
constexpr std::size_t kLongestField = std::size_t{2} * PATH_MAX;

/// Reads the lines of a stream without their line ends (LF or CR LF).
class LineReader {
 public:
  explicit LineReader(std::FILE* stream) : file(stream) {}
  ~LineReader() { std::free(buffer); }
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  /// Returns false at the end of the stream and on an error; `Failed` distinguishes the two.
  bool Next(std::string& line) {
    const ssize_t length = getline(&buffer, &capacity, file);
    if (length <= 0) return false;
    ++number;
    line.assign(buffer, static_cast<std::size_t>(length));
    if (line.ends_with('\n')) line.pop_back();
    if (line.ends_with('\r')) line.pop_back();
    return true;
  }
  long Number() const { return number; }
  /// Running out of memory for a line sets neither end-of-file nor the error flag.
  bool Failed() const { return std::feof(file) == 0 || std::ferror(file) != 0; }

 private:
  std::FILE* file;
  char* buffer = nullptr;
  std::size_t capacity = 0;
  long number = 0;
};

/// Rewrites one file.
class Rewriter {
 public:
  Rewriter(std::FILE* input, const RewriteOptions& rewriteOptions, FileWriter& writer)
      : reader(input), options(rewriteOptions), output(writer) {}

  int Run() {
    std::string line;
    bool inHeader = true;
    while (reader.Next(line)) {
      if (line.starts_with(kPseudoTag)) {
        // In concatenated files only the first header counts.
        if (inHeader && !AddHeaderLine(line)) return -1;
        continue;
      }
      TagLine tag;
      LineForm form = ParseTagLine(line, tag);
      const std::size_t longest = line.find('\t') + kLongestField;
      for (std::string more;
           form == LineForm::kOpenPath && line.size() < longest && reader.Next(more);) {
        line += '\n';
        line += more;
        form = ParseTagLine(line, tag);
      }
      if (form != LineForm::kTag)
        return NotTagsFile("line " + std::to_string(reader.Number()) + " is not a tag");
      if (std::exchange(inHeader, false)) WriteHeader();
      if (!AddTag(line, tag)) return WriteFailed();
    }
    if (reader.Failed()) return Fail("error reading " + options.inputName);
    if (reader.Number() == 0) return NotTagsFile("it is empty");
    if (inHeader) WriteHeader();
    return WriteHeldLines() ? 0 : WriteFailed();
  }

 private:
  static int Fail(const std::string& message) {
    std::fprintf(stderr, "%s\n", message.c_str());
    return -1;
  }
  int NotTagsFile(const std::string& why) const {
    return Fail(options.inputName + " is not a tags file: " + why);
  }
  /// Prints nothing, since only the caller knows the name of the output.
  static int WriteFailed() { return -1; }

  /// Adds a header line to the output, with an empty third field if it has none. False if the sort
  /// mark is invalid.
  bool AddHeaderLine(const std::string& line) {
    const std::size_t tab = line.find('\t');
    const std::string_view name = std::string_view(line).substr(0, tab);
    const std::string_view value =
        tab == line.npos ? std::string_view() : std::string_view(line).substr(tab + 1);
    if (name == kFormat) return true;
    if (name == kSorted) {
      mark = value.empty() ? '?' : value[0];
      if (mark >= '0' && mark <= '2') return true;
      NotTagsFile("unknown sort mark");
      return false;
    }
    header += line;
    if (tab == line.npos) header += '\t';
    if (value.find('\t') == value.npos) header += "\t//";
    header += '\n';
    return true;
  }

  void WriteHeader() {
    output.Write(std::string(kFormat) + "\t2\t/extended format/\n" + std::string(kSorted) + "\t" +
                 mark + "\t/0=unsorted, 1=sorted, 2=foldcase/\n" + header);
  }

  /// Writes a tag or holds it for sorting. False if writing failed.
  bool AddTag(const std::string& line, const TagLine& tag) {
    if (!tag.numbered) return Put({line + "\n", tag.name.size()});
    const std::string path = PlainPath(tag.file, options.home);
    if (!FitsInLine(path)) {
      LeaveOut(tag.file);
      return true;
    }
    std::string text(tag.name);
    text += '\t';
    text += path;
    text += '\t';
    const std::size_t addressStart = text.size();
    text += line.substr(static_cast<std::size_t>(tag.address.data() - line.data()));
    text += '\n';
    NamedLine result{std::move(text), tag.name.size()};
    if (!IsSwift(path)) return Put(std::move(result));
    scopes.Add(path, tag);
    if (mark != '0') {
      held.push_back(std::move(result));
      swiftLines.emplace_back(held.size() - 1, addressStart);
      return true;
    }
    AddKey(result, addressStart);
    return Put(std::move(result));
  }

  /// Adds the key to a Swift scope without one. The address begins at offset `addressStart`.
  void AddKey(NamedLine& line, std::size_t addressStart) const {
    TagLine tag;
    ParseTagLine(std::string_view(line.text).substr(0, line.text.size() - 1), tag);
    const std::string_view scope = Field(tag.fields, 1);
    if (scope.empty() || HasKey(scope)) return;
    const std::string_view path =
        std::string_view(line.text).substr(line.nameLength + 1, addressStart - line.nameLength - 2);
    const std::string key(scopes.KeyOf(path, scope, LineNumber(tag)));
    line.text.insert(static_cast<std::size_t>(scope.data() - line.text.data()), key + ":");
  }

  bool Put(NamedLine&& line) {
    if (mark == '0') return output.Write(line.text);
    held.push_back(std::move(line));
    return true;
  }

  bool WriteHeldLines() {
    for (const auto& [index, addressStart] : swiftLines) AddKey(held[index], addressStart);
    SortForReaders(held, mark);
    bool good = output.Write("");
    for (auto line = held.begin(); good && line != held.end(); ++line) {
      good = output.Write(line->text);
    }
    return good;
  }

  void LeaveOut(std::string_view field) {
    if (!leftOut.emplace(field).second) return;
    std::string shown;
    for (const char c : field) {
      if (c == '\t' || c == '\n') {
        shown += c == '\t' ? 't' : 'n';
      } else {
        shown += c;
      }
    }
    std::fprintf(stderr, "skipped the tags of a path with a tab or newline: %s\n", shown.c_str());
  }

  LineReader reader;
  const RewriteOptions& options;
  FileWriter& output;
  char mark = '0';
  std::string header;  ///< The header lines after the first two.
  SwiftScopes scopes;
  std::vector<NamedLine> held;
  std::vector<std::pair<std::size_t, std::size_t>>
      swiftLines;  ///< Index in `held`, offset of the address.
  std::set<std::string, std::less<>> leftOut;
};

}  // namespace

int RewriteTags(std::FILE* input, const RewriteOptions& options, FileWriter& output) {
  return Rewriter(input, options, output).Run();
}

}  // namespace vexltags
