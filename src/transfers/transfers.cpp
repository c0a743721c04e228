#include "transfers/transfers.h"

#include <utility>

namespace velmora {

void Transfers::ask(Transfer transfer) {
    leave();
    transfer_ = std::move(transfer);
    transfer_.began = clock_.universalTime();
    began_ = clock_.monotonic();
    stage_ = Stage::Asked;
}

void Transfers::begin(std::optional<std::uint64_t> size) {
    transfer_.size = size;
    stage_ = Stage::UnderWay;
    for (TransferObserver* observer : observers_) {
        observer->transferBegan(transfer_);
    }
}

void Transfers::moved(std::size_t bytes) {
    if (bytes == 0) {
        return;
    }
    if (stage_ == Stage::Over) {
        transfer_.bytes = 0;
        ask(transfer_);
        begin(transfer_.size);
    }
    if (stage_ != Stage::UnderWay) {
        return;
    }
    transfer_.bytes += bytes;
    transfer_.duration = clock_.monotonic() - began_;
    for (TransferObserver* observer : observers_) {
        observer->transferMoved(transfer_);
    }
}

void Transfers::complete() {
    if (stage_ == Stage::UnderWay) {
        end({});
    }
}

void Transfers::refuse(int code, std::string reason) {
    if (stage_ == Stage::None || stage_ == Stage::Over) {
        ask({});
    }
    const TransferResult result =
        stage_ == Stage::UnderWay ? TransferResult::Incomplete : TransferResult::Refused;
    end({result, code, std::move(reason)});
}

void Transfers::leave() {
    const bool allMoved = transfer_.direction == TransferDirection::Load && transfer_.size &&
                          transfer_.bytes >= *transfer_.size;
    if (stage_ == Stage::Asked) {
        end({TransferResult::Refused, 0, "it failed"});
    } else if (stage_ == Stage::UnderWay) {
        end(allMoved ? TransferEnd{} : TransferEnd{TransferResult::Incomplete, 0, "the link ended"});
    }
    stage_ = Stage::None;
}

void Transfers::end(const TransferEnd& end) {
    stage_ = Stage::Over;
    transfer_.duration = clock_.monotonic() - began_;
    for (TransferObserver* observer : observers_) {
        observer->transferEnded(transfer_, end);
    }
}

}  // namespace velmora
