// The file services of the model server, over files in memory.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "base/byte_text.h"
#include "base/like_pattern.h"
#include "model_server.h"

namespace velmora::test {

/// Contents by name, names in capitals with their extension.
using ModelFolder = std::map<std::string, std::string>;

/// Open file and requests that FTRAN and FILE share. Text files hold lines that end in CR LF.
class ModelFileService : public ModelService {
  public:
    explicit ModelFileService(ModelFolder& folder) : folder_(folder) {}

    Answer message(const std::string& payload) override {
        if (payload.empty()) {
            return refuse(190);
        }
        const std::string argument = payload.substr(1);
        switch (payload[0]) {
            case 0:
                return argument.size() < 2 ? refuse(190) : open(argument);
            case 1:
                return reply("");
            case 2:
                return write(argument);
            case 3:
                return argument.empty() ? refuse(190) : read(static_cast<unsigned char>(argument[0]));
            default:
                return other(payload[0], argument);
        }
    }
    void closed() override { status_ = Status::None; }

  protected:
    enum class Status { None, Reading, Writing };

    virtual Answer open(const std::string& argument) = 0;
    virtual Answer other(char /*operation*/, const std::string& /*argument*/) { return refuse(190); }
    /// What is stored of written bytes that are no text record.
    virtual std::string stored(const std::string& data) { return data; }

    /// The rules of the open modes; 0 or the code of the refusal.
    int prepare(const std::string& name, int mode) {
        name_ = upperCase(name);
        const bool exists = folder_.count(name_) > 0;
        if (mode > 4) {
            return 190;
        }
        if (!exists && (mode == 0 || mode == 2 || mode == 4)) {
            return 189;
        }
        if (exists && mode == 3) {
            return 187;
        }
        if (mode == 1 || mode == 2 || mode == 3) {
            folder_[name_].clear();
        }
        status_ = mode == 0 ? Status::Reading : Status::Writing;
        contents_ = mode == 0 ? folder_[name_] : "";
        position_ = 0;
        return 0;
    }

    Answer write(const std::string& data) {
        if (status_ != Status::Writing) {
            return refuse(188);
        }
        std::string& file = folder_[name_];
        if (text_) {
            file += data + "\r\n";
        } else {
            const std::string bytes = stored(data);
            file.replace(std::min(position_, file.size()), bytes.size(), bytes);
            position_ += bytes.size();
        }
        return reply("");
    }

    Answer read(std::size_t maximum) {
        if (status_ != Status::Reading) {
            return refuse(188);
        }
        if (position_ >= contents_.size()) {
            return refuse(238);
        }
        if (!text_) {
            const std::string block = contents_.substr(position_, maximum);
            position_ += block.size();
            return reply(block);
        }
        const std::size_t end = contents_.find("\r\n", position_);
        const std::string line = contents_.substr(position_, end - position_);
        position_ = end == std::string::npos ? contents_.size() : end + 2;
        return line.size() > maximum ? refuse(185) : reply(line);
    }

    ModelFolder& folder_;
    Status status_ = Status::None;
    bool text_ = false;
    std::string name_;
    std::string contents_;  // what is read
    std::size_t position_ = 0;
};

class ModelFtran : public ModelFileService {
  public:
    using ModelFileService::ModelFileService;

  protected:
    Answer open(const std::string& argument) override {
        const int mode = argument[0];
        type_ = argument[1];
        if (type_ > 16) {
            return refuse(190);
        }
        text_ = type_ == 0;
        const std::string extension = type_ == 0   ? ".ODB"
                                      : type_ == 1 ? ".OPL"
                                                   : ".OB" + std::to_string(type_);
        if (const int code = prepare(argument.substr(2) + extension, mode)) {
            return refuse(code);
        }
        if (mode != 0 || type_ == 0) {
            return reply("");
        }
        if (type_ == 1) {
            std::string source;
            for (const char c : contents_) {
                if (c != '\r') {
                    source += c == '\n' ? '\0' : c;
                }
            }
            contents_ = source;
            const std::string size = word(source.size());
            return reply(word(source.size() + 4) + std::string("\x81\0\0", 3) + size);
        }
        return reply(word(contents_.size()) + static_cast<char>(128 + type_));
    }
    std::string stored(const std::string& data) override {
        if (type_ != 1) {
            return data;
        }
        std::string text;
        for (const char c : data) {
            text += c == '\0' ? std::string("\r\n") : std::string(1, c);
        }
        return text;
    }

  private:
    static std::string word(std::size_t value) {
        return {static_cast<char>(value / 256), static_cast<char>(value % 256)};
    }
    int type_ = 0;
};

class ModelFile : public ModelFileService {
  public:
    using ModelFileService::ModelFileService;

  protected:
    Answer open(const std::string& argument) override {
        if (status_ != Status::None) {
            return refuse(199);
        }
        const int kind = argument[1];
        text_ = kind != 0;
        if (kind < 2) {
            const int code = prepare(argument.substr(2), argument[0]);
            return code != 0 ? refuse(code) : reply("");
        }
        contents_.clear();
        for (const auto& [name, contents] : folder_) {
            if (likeMatches(name, upperCase(argument.substr(2)))) {
                contents_ += name + "\r\n";
            }
        }
        position_ = 0;
        status_ = Status::Reading;
        return reply("");
    }
    Answer other(char operation, const std::string& argument) override {
        if (operation != 4 || text_ || argument.size() < 2) {
            return refuse(190);
        }
        const long size =
            static_cast<long>(status_ == Status::Reading ? contents_.size() : folder_[name_].size());
        const long from = argument[0] == 0 ? 0 : argument[0] == 1 ? static_cast<long>(position_) : size;
        const long to = from + std::stol(argument.substr(1));
        if (to < 0) {
            return refuse(188);
        }
        position_ = static_cast<std::size_t>(to);
        std::string digits = std::to_string(to);
        return reply(digits.insert(0, 8 - std::min<std::size_t>(8, digits.size()), '0'));
    }
};

}  // namespace velmora::test
