#pragma once

#include <QtGlobal>

#include <array>
#include <atomic>
#include <vector>

/// A lock-free queue of a few blocks of stereo samples, from the thread that reads a file to the
/// thread that mixes. Neither thread waits for the other here.
class BlockQueue final
{
public:
    struct Block
    {
        std::vector<float> samples;
        int frames = 0;
        /// True for the last block of a pass through the file; it may be shorter than others.
        bool endsPass = false;
    };

    explicit BlockQueue(int framesPerBlock)
    {
        for (Block &block : _blocks)
            block.samples.resize(static_cast<std::size_t>(framesPerBlock) * 2);
    }
    Q_DISABLE_COPY_MOVE(BlockQueue)

    /// The block to fill next, or null when all are full. For the reading thread.
    [[nodiscard]] Block *back()
    {
        const unsigned pushed = _pushed.load(std::memory_order_relaxed);
        const bool full = pushed - _popped.load(std::memory_order_acquire) == kBlocks;
        return full ? nullptr : &_blocks[pushed % kBlocks];
    }

    /// Hands the block from back() to the mixing thread. For the reading thread.
    void push() { _pushed.fetch_add(1, std::memory_order_release); }

    /// The block to play next, or null when all are empty. For the mixing thread.
    [[nodiscard]] const Block *front() const
    {
        const unsigned popped = _popped.load(std::memory_order_relaxed);
        const bool empty = popped == _pushed.load(std::memory_order_acquire);
        return empty ? nullptr : &_blocks[popped % kBlocks];
    }

    /// Returns the block from front() to the reading thread. For the mixing thread.
    void pop() { _popped.fetch_add(1, std::memory_order_release); }

    /// True when the reading thread should read on. For the mixing thread.
    [[nodiscard]] bool isHalfEmpty() const
    {
        const unsigned popped = _popped.load(std::memory_order_relaxed);
        return _pushed.load(std::memory_order_relaxed) - popped <= kBlocks / 2;
    }

private:
    // A power of two, so that the counters may wrap around.
    static constexpr unsigned kBlocks = 8;

    std::array<Block, kBlocks> _blocks;
    std::atomic<unsigned> _pushed = 0;
    std::atomic<unsigned> _popped = 0;
};
