#include "headless/GameMain.h"

int gameMain(int argc, char* argv[]); // the program's own, under the name that the build gives it

namespace quorva::headless {

int runGameMain(const std::vector<std::string>& options) {
    std::vector<std::string> words = {"kov"};
    words.insert(words.end(), options.begin(), options.end());
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    return gameMain(static_cast<int>(words.size()), arguments.data());
}

} // namespace quorva::headless
