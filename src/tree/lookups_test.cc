// SPDX-License-Identifier: MIT
// Tests of which words a result depends on.
#include "tree/lookups.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace vexltags::tree {
namespace {

/// The digests after learning files with these paths and texts.
MacroDigests Digests(const std::vector<std::pair<std::string, std::string>>& files) {
  std::map<std::string, std::string> texts(files.begin(), files.end());
  std::vector<std::string> order;
  for (const auto& [path, text] : files) order.push_back(path);
  thorough::SessionSources sources;
  sources.text = [&texts](const std::string& path, bool) -> std::optional<std::string_view> {
    return texts.at(path);
  };
  thorough::Session session(order, sources);
  return DigestsOf(session);
}

std::vector<WordHash> Hashes(const std::vector<std::string>& words) {
  std::vector<WordHash> hashes;
  for (const std::string& word : words) hashes.push_back(HashOf(word));
  std::sort(hashes.begin(), hashes.end());
  return hashes;
}

TEST(Lookups, KeepsEachWordOnce) {
  Lookups lookups;
  for (int i = 0; i < 5000; ++i) lookups.OnLookup("word" + std::to_string(i % 2500), true);
  EXPECT_EQ(lookups.Hashes().size(), 2500 * sizeof(WordHash));
  EXPECT_TRUE(WordSet(Hashes({"other", "word2499"})).HasAnyOf(lookups.Hashes()));
  EXPECT_FALSE(WordSet(Hashes({"other", "word2500"})).HasAnyOf(lookups.Hashes()));
  EXPECT_FALSE(WordSet({}).HasAnyOf(lookups.Hashes()));
  lookups.Clear();
  EXPECT_EQ(lookups.Hashes(), "");
}

TEST(Lookups, TellsShortWordsApart) {
  // Lengths around those of the parts in which words are compared, with the same ends.
  std::vector<std::string> words;
  for (std::size_t size = 1; size <= 20; ++size) {
    words.push_back(std::string(size, 'a'));
    words.push_back(std::string(size, 'a') + "b");
    words.push_back("b" + std::string(size, 'a'));
  }
  Lookups lookups;
  for (int round = 0; round < 3; ++round) {
    for (const std::string& word : words) lookups.OnLookup(word, true);
  }
  EXPECT_EQ(lookups.Hashes().size(), words.size() * sizeof(WordHash));
  for (const std::string& word : words) {
    EXPECT_TRUE(WordSet(Hashes({word})).HasAnyOf(lookups.Hashes())) << word;
  }
}

TEST(Lookups, CollectsUnknownWordsThatLookLikeMacros) {
  Lookups lookups;
  for (const char* word : {"API_CALL", "API_CALL", "lower", "Mixed", "AB", "___", "V2X"}) {
    lookups.OnLookup(word, false);
  }
  lookups.OnLookup("KNOWN", true);
  EXPECT_EQ(lookups.Unknown(), (std::vector<std::string>{"API_CALL", "V2X"}));
}

TEST(Lookups, DigestsChangeWithAnythingThatADefinitionHas) {
  const MacroDigests before = Digests({{"a.h", "#define A int\n#define B(x) {x}\n#define C\n"}});
  const auto changed = [&before](const std::string& path, const std::string& text) {
    return ChangedWords(before, Digests({{path, text}}));
  };
  EXPECT_EQ(changed("a.h", "\n#define B(x) {x}\n#define A int\n#define C\n"), Hashes({}));
  EXPECT_EQ(changed("a.h", "#define A long\n#define B(x) {x}\n#define C\n"), Hashes({"A"}));
  EXPECT_EQ(changed("a.h", "#define A int\n#define B(y) {x}\n#define C\n"), Hashes({"B"}));
  EXPECT_EQ(changed("a.h", "#define A int\n#define B(x) {x}\n"), Hashes({"C"}));
  EXPECT_EQ(changed("a.h", "#define A int\n#define B(x) {x}\n#define C\n#define D\n"),
            Hashes({"D"}));
  EXPECT_EQ(changed("a.h", "#define A int\n#define B(x) {x}\n#define C()\n"), Hashes({"C"}));
  EXPECT_EQ(changed("b.h", "#define A int\n#define B(x) {x}\n#define C\n"),
            Hashes({"A", "B", "C"}));
}

TEST(Lookups, DigestsChangeWithTheOrderOfDefinitions) {
  const MacroDigests before = Digests({{"a.h", "#define A int\n"}, {"b.h", "#define A long\n"}});
  const MacroDigests after = Digests({{"b.h", "#define A long\n"}, {"a.h", "#define A int\n"}});
  EXPECT_EQ(ChangedWords(before, after), Hashes({"A"}));
  EXPECT_EQ(DecodeDigests(EncodeDigests(before)), before);
}

}  // namespace
}  // namespace vexltags::tree
