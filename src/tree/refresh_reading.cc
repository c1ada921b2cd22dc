// SPDX-License-Identifier: MIT
// The reading of files: for what can be learned from them, for their tags, and once more where the
// numbers of made-up names are others.
#include <cstdio>

#include "tree/refresh.h"
#include "tree/worker.h"

namespace vexltags::tree {
namespace {

/// So few files are looked at without workers.
constexpr std::size_t kFewFiles = 16;

}  // namespace

bool Refresh::CheckContents() {
  std::vector<std::uint32_t> numbers;
  for (std::uint32_t i = 0; i < files.size(); ++i) {
    const TreeFile& file = files[i];
    const bool isKnown = file.row.id != 0;
    if (file.learns ? !file.hasFacts : isKnown && !file.hasResult) numbers.push_back(i);
  }
  if (rows.empty() && numbers.size() > kFewFiles) {
    // There is nothing to compare with. The session learns from each file as soon as it can.
    progress.Begin("scanning", numbers.size(), SizeOf(numbers));
    isChanged = factsChanged = true;
    scan.emplace(RequestsFor(numbers, true), options.jobs, nullptr, stores, Events());
    return true;
  }
  if (!ReadFiles(numbers, true, "scanning")) return false;
  for (const std::uint32_t number : numbers) CheckContent(files[number]);
  return true;
}

void Refresh::CheckContent(TreeFile& file) {
  if (!file.facts) return;
  // What is known holds as long as the content is the same, whatever its time.
  file.hasResult = file.row.id != 0 && file.row.resultHash == file.factsHash;
  isChanged = true;
  if (!file.learns) {
    file.facts.reset();
    return;
  }
  if (file.row.id != 0 && file.row.factsHash == file.factsHash && file.row.factsHash != 0) {
    file.hasFacts = true;
    file.facts.reset();
  } else if (file.row.id == 0 || file.row.factsHash == 0 || !cache ||
             !thorough::MacroTable::HaveSameDirectives(cache->Blob(file.row.id, BlobKind::kFacts),
                                                       *file.facts)) {
    factsChanged = true;
  }
}

std::int64_t Refresh::SizeOf(const std::vector<std::uint32_t>& numbers) const {
  std::int64_t bytes = 0;
  for (const std::uint32_t number : numbers) bytes += files[number].stamp.size;
  return bytes;
}

std::vector<PooledRequest> Refresh::RequestsFor(const std::vector<std::uint32_t>& numbers,
                                                bool forFacts) const {
  std::vector<PooledRequest> requests;
  for (const std::uint32_t number : numbers) {
    const TreeFile& file = files[number];
    PooledRequest request;
    request.request.index = number;
    request.request.forFacts = forFacts;
    request.request.job.path = file.path;
    request.request.job.anonStart = file.result ? file.Head().anonStart : -1;
    request.request.job.wantsLookups = cache || options.wantsReport;
    // Scanning takes little time, and the session needs the files in their order.
    request.cost = forFacts ? 0 : file.stamp.size;
    requests.push_back(std::move(request));
  }
  return requests;
}

PoolEvents Refresh::Events() {
  PoolEvents events;
  events.onAnswer = [this](Answer&& answer) { TakeAnswer(std::move(answer)); };
  events.onTick = [this] {
    progress.Tick();
    // The workers have enough to do meanwhile.
    if (cache && session && hasNewDigests && newDigests.empty()) {
      newDigests = EncodeDigests(DigestsOf(*session));
    }
    return !goesOn || goesOn();
  };
  return events;
}

bool Refresh::ReadFiles(const std::vector<std::uint32_t>& numbers, bool forFacts,
                        const char* verb) {
  progress.Begin(verb, numbers.size(), SizeOf(numbers));
  if (forFacts && numbers.size() <= kFewFiles) {
    std::string buffer;
    for (const std::uint32_t number : numbers) {
      Answer answer = ReadFacts(files[number].path, buffer);
      answer.index = number;
      TakeAnswer(std::move(answer));
    }
    return true;
  }
  std::vector<PooledRequest> requests = RequestsFor(numbers, forFacts);
  const PoolEvents events = Events();
  if (!options.hosts.empty() && !forFacts && numbers.size() > kFewFiles) {
    ReadOnHosts(requests, events);
  }
  const bool isDone =
      RunInWorkers(requests, options.jobs, session ? &*session : nullptr, stores, events);
  if (!isDone) ReportWorkers();
  return isDone;
}

void Refresh::ReportWorkers() {
  progress.Clear();
  if (goesOn && !goesOn()) return;
  std::fputs("vexltags-tree: no worker process could be started\n", stderr);
}

void Refresh::TakeAnswer(Answer&& answer) {
  TreeFile& file = files[answer.index];
  progress.Add(file.stamp.size);
  if (answer.forFacts) {
    file.isScanned = true;
    if (answer.result.info.status != FileStatus::kRead) return;
    file.facts = std::move(answer.facts);
    file.factsHash = answer.result.info.hash;
    return;
  }
  file.result = std::move(answer.result);
}

bool Refresh::IndexFiles() {
  std::vector<std::uint32_t> numbers;
  for (std::uint32_t i = 0; i < sourceCount; ++i) {
    if (!files[i].hasResult) numbers.push_back(i);
  }
  counts.filesRead = numbers.size();
  if (numbers.empty()) return true;
  isChanged = tagsChanged = true;
  return ReadFiles(numbers, false, "reading");
}

bool Refresh::NumberAnon() {
  // Where numbers cannot be changed afterwards, files are read again with the right ones.
  constexpr int kMostRounds = 3;
  for (int round = 0; round < kMostRounds; ++round) {
    std::vector<std::uint32_t> numbers;
    std::int32_t base = 0;
    for (std::uint32_t i = 0; i < sourceCount; ++i) {
      TreeFile& file = files[i];
      if (!file.IsRead()) continue;
      const InfoHead head = file.Head();
      if (head.anonStart >= 0 && head.anonStart != base) {
        if (!file.result) file.result.emplace();
        file.result->info.anonStart = base;
        numbers.push_back(i);
      }
      base += head.anonCount;
    }
    if (numbers.empty()) return true;
    isChanged = tagsChanged = true;
    if (!options.isExact && !session) MakeSession(&learnedOrder);
    if (!ReadFiles(numbers, false, "numbering")) return false;
  }
  return true;
}

}  // namespace vexltags::tree
