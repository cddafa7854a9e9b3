// A child process that runs one of our programs, the two lines to it, and its end.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace talls {

using Moment = std::chrono::steady_clock::time_point;

class Proces {
 public:
  // `programa` lies beside the one that runs.
  Proces(const std::string& programa, const std::vector<std::string>& arguments);
  ~Proces();
  Proces(const Proces&) = delete;
  Proces& operator=(const Proces&) = delete;

  void Escriure(const std::string& linia) const;  // to its standard input; a dead reader is passed over
  // The next line of its standard output; none when the moment comes first, or when it has ended.
  std::optional<std::string> Llegir_Linia(Moment fins);
  // Kills it as a power cut would. False when it had ended by itself before.
  bool Matar();

 private:
  pid_t pid_ = -1;
  int entrada_ = -1;
  int sortida_ = -1;
  std::string rebut_;
};

}  // namespace talls
