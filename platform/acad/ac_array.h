#pragma once

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/windows/host_assert.h"

/// A growing list owned by value; lengths and indices are int. A bad index stops the process.
template <class T>
class AcArray {
    static_assert(!std::is_same_v<T, bool>, "a list of bool has no addressable elements; use int");

public:
    using iterator = T*;
    using const_iterator = const T*;

    /// physicalLength elements of room at the start; growLength is the least room added when it runs out.
    explicit AcArray(int physicalLength = 0, int growLength = 8)
        : m_nGrowLength(growLength) {
        HOST_ASSERT(growLength > 0, "the grow length is positive");
        setPhysicalLength(physicalLength);
    }

    /// Appends a copy and returns its index.
    int append(const T& value) {
        if (m_arValues.size() < m_arValues.capacity()) {
            m_arValues.push_back(value);
        } else {
            T copy(value); // value may lie in this very list
            MakeRoom(1);
            m_arValues.push_back(std::move(copy));
        }
        return length() - 1;
    }
    /// Appends all elements of another list, which may be this one.
    AcArray& append(const AcArray& other) {
        const int count = other.length();
        MakeRoom(count);
        for (int i = 0; i < count; ++i)
            m_arValues.push_back(other[i]);
        return *this;
    }

    int length() const { return static_cast<int>(m_arValues.size()); }
    int logicalLength() const { return length(); }
    bool isEmpty() const { return m_arValues.empty(); }

    const T& at(int index) const { return m_arValues[Checked(index)]; }
    T& at(int index) { return m_arValues[Checked(index)]; }
    const T& operator[](int index) const { return m_arValues[Checked(index)]; }
    T& operator[](int index) { return m_arValues[Checked(index)]; }
    AcArray& setAt(int index, const T& value) {
        m_arValues[Checked(index)] = value;
        return *this;
    }
    AcArray& setAll(const T& value) {
        m_arValues.assign(m_arValues.size(), T(value)); // through a copy: value may lie in this very list
        return *this;
    }
    const T& first() const { return at(0); }
    T& first() { return at(0); }
    const T& last() const { return at(length() - 1); }
    T& last() { return at(length() - 1); }

    /// Inserts before index, 0 to length().
    AcArray& insertAt(int index, const T& value) {
        HOST_ASSERT(index >= 0 && index <= length(), "an element is inserted within the list or at its end");
        T copy(value);
        MakeRoom(1);
        m_arValues.insert(m_arValues.begin() + index, std::move(copy));
        return *this;
    }
    AcArray& removeAt(int index) {
        m_arValues.erase(m_arValues.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
        return *this;
    }
    AcArray& removeFirst() { return removeAt(0); }
    AcArray& removeLast() { return removeAt(length() - 1); }
    AcArray& removeAll() { return setLogicalLength(0); }
    /// Removes the elements from startIndex to endIndex, both included.
    AcArray& removeSubArray(int startIndex, int endIndex) {
        HOST_ASSERT(startIndex >= 0 && startIndex <= endIndex && endIndex < length(),
                    "the part lies in the list");
        m_arValues.erase(m_arValues.begin() + startIndex, m_arValues.begin() + endIndex + 1);
        return *this;
    }
    /// Removes the first element from start on that equals value; false if there is none.
    bool remove(const T& value, int start = 0) {
        const int index = find(value, start);
        if (index < 0) return false;
        removeAt(index);
        return true;
    }

    /// Index of the first element from start on that equals value, -1 if there is none.
    int find(const T& value, int start = 0) const {
        for (int i = std::max(start, 0); i < length(); ++i)
            if (m_arValues[static_cast<std::size_t>(i)] == value) return i;
        return -1;
    }
    bool contains(const T& value, int start = 0) const { return find(value, start) >= 0; }

    AcArray& reverse() {
        std::reverse(m_arValues.begin(), m_arValues.end());
        return *this;
    }
    AcArray& swap(int index1, int index2) {
        std::swap(at(index1), at(index2));
        return *this;
    }

    /// Cuts the list or lengthens it by default values.
    AcArray& setLogicalLength(int count) {
        HOST_ASSERT(count >= 0, "a length is not negative");
        MakeRoom(count - length());
        m_arValues.resize(static_cast<std::size_t>(count));
        return *this;
    }
    /// Sets the room held; a length beyond it is cut.
    AcArray& setPhysicalLength(int count) {
        HOST_ASSERT(count >= 0, "a length is not negative");
        if (count == physicalLength()) return *this;
        std::vector<T> values;
        values.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < std::min(count, length()); ++i)
            values.push_back(std::move(at(i)));
        m_arValues.swap(values);
        return *this;
    }
    int physicalLength() const { return static_cast<int>(m_arValues.capacity()); }
    int growLength() const { return m_nGrowLength; }
    AcArray& setGrowLength(int count) {
        HOST_ASSERT(count > 0, "the grow length is positive");
        m_nGrowLength = count;
        return *this;
    }

    bool operator==(const AcArray& other) const { return m_arValues == other.m_arValues; }

    const T* asArrayPtr() const { return m_arValues.data(); }
    T* asArrayPtr() { return m_arValues.data(); }
    iterator begin() { return m_arValues.data(); }
    iterator end() { return m_arValues.data() + m_arValues.size(); }
    const_iterator begin() const { return m_arValues.data(); }
    const_iterator end() const { return m_arValues.data() + m_arValues.size(); }

private:
    std::size_t Checked(int index) const {
        HOST_ASSERT(index >= 0 && index < length(), "the index lies in the list");
        return static_cast<std::size_t>(index);
    }
    void MakeRoom(int more) {
        if (more <= physicalLength() - length()) return;
        const int step = std::max({more, m_nGrowLength, length()}); // doubling keeps appending linear
        m_arValues.reserve(static_cast<std::size_t>(length()) + static_cast<std::size_t>(step));
    }

    std::vector<T> m_arValues;
    int m_nGrowLength;
};
