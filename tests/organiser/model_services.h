// The smaller services of the model server: one that follows a script, the spreadsheet, boot code.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model_server.h"

namespace velmora::test {

/// Answers one opening with `first` and the messages behind it with the script; beyond its end with 190.
class ScriptedService : public ModelService {
  public:
    explicit ScriptedService(Answer first, std::deque<Answer> script = {})
        : first_(std::move(first)), script_(std::move(script)) {}

    Answer opened() override { return first_; }
    Answer message(const std::string& payload) override {
        messages.push_back(payload);
        if (script_.empty()) {
            return refuse(190);
        }
        Answer answer = script_.front();
        script_.pop_front();
        return answer;
    }
    void closed() override { ++timesClosed; }

    std::vector<std::string> messages;
    int timesClosed = 0;

  private:
    Answer first_;
    std::deque<Answer> script_;
};

/// PLAN: keeps the cells of each name and sends them back row by row; a number n as "n.0E0" is not its task.
class ModelPlan : public ModelService {
  public:
    using Cells = std::map<std::pair<int, int>, std::string>;  // row and column to type and text

    Answer opened() override {
        phase_ = Phase::Header;
        return reply("");
    }
    Answer message(const std::string& payload) override {
        switch (phase_) {
            case Phase::Header:
                return header(payload);
            case Phase::Size:
                sizes[name_] = {payload.at(0), payload.at(1)};
                sheets[name_].clear();
                phase_ = Phase::Cells;
                return reply(std::string(1, '\0'));
            case Phase::Cells:
                if (payload == "\xFE") {
                    return reply({'\xFE', '\0'});
                }
                sheets[name_].insert({{payload.at(1), payload.at(0)}, payload.substr(2)});
                return reply(std::string(1, '\0'));
            case Phase::Sending:
                return nextCell();
        }
        return refuse(190);
    }

    std::map<std::string, Cells> sheets;
    std::map<std::string, std::pair<int, int>> sizes;  ///< columns and rows as announced
    std::string lastHeader;

  private:
    enum class Phase { Header, Size, Cells, Sending };

    Answer header(const std::string& payload) {
        lastHeader = payload;
        name_ = payload.substr(1);
        if (static_cast<unsigned char>(payload[0]) >= 128) {
            phase_ = Phase::Size;
        } else if (sheets.count(name_) == 0) {
            return {true, "53"};
        } else {
            next_ = sheets[name_].begin();
            phase_ = Phase::Sending;
        }
        return reply(std::string(1, '\0'));
    }
    Answer nextCell() {
        if (next_ == sheets[name_].end()) {
            return reply({'\xFE', '\0'});
        }
        const auto& [place, content] = *next_++;
        return reply(std::string{static_cast<char>(place.second), static_cast<char>(place.first)} + content);
    }

    Phase phase_ = Phase::Header;
    std::string name_;
    Cells::const_iterator next_;
};

/// BOOT: sends code, already relocated by the test, in chunks of 200 bytes.
class ModelBoot : public ModelService {
  public:
    explicit ModelBoot(std::string code) : code_(std::move(code)) {}

    Answer opened() override {
        named_ = false;
        sent_ = 0;
        return reply("");
    }
    Answer message(const std::string& payload) override {
        if (!named_) {
            named_ = true;
            return payload == "LOADER" ? reply(word(code_.size())) : refuse(189);
        }
        if (sent_ == 0) {
            address_ =
                static_cast<unsigned char>(payload.at(0)) * 256U + static_cast<unsigned char>(payload.at(1));
        }
        if (sent_ >= code_.size()) {
            return refuse(0);
        }
        const std::string chunk = code_.substr(sent_, 200);
        const std::string at = word(address_ + sent_);
        sent_ += chunk.size();
        return reply(at + chunk);
    }

  private:
    static std::string word(std::size_t value) {
        return {static_cast<char>(value / 256 % 256), static_cast<char>(value % 256)};
    }

    std::string code_;
    bool named_ = false;
    std::size_t address_ = 0;
    std::size_t sent_ = 0;
};

}  // namespace velmora::test
