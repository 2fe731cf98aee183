#pragma once

#include <algorithm>
#include <cstddef>
#include <list>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/mfc/string.h"
#include "platform/windows/host_assert.h"

/// A growing list owned by value; ARG_TYPE is how an element is handed in. A bad index stops the process.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray {
    static_assert(!std::is_same_v<TYPE, bool>, "a list of bool has no addressable elements; use BOOL");

public:
    int GetSize() const { return static_cast<int>(m_arValues.size()); }
    int GetCount() const { return GetSize(); }
    bool IsEmpty() const { return m_arValues.empty(); }
    /// Index of the last element, -1 when there is none.
    int GetUpperBound() const { return GetSize() - 1; }
    /// Cuts the list or lengthens it by default values (zero for numbers). growBy is room made in advance.
    void SetSize(int size, int growBy = -1) {
        HOST_ASSERT(size >= 0, "a size is not negative");
        if (growBy > 0) m_arValues.reserve(static_cast<std::size_t>(size) + static_cast<std::size_t>(growBy));
        m_arValues.resize(static_cast<std::size_t>(size));
    }
    void FreeExtra() { m_arValues.shrink_to_fit(); }
    void RemoveAll() { m_arValues.clear(); }

    const TYPE& GetAt(int index) const { return m_arValues[Checked(index)]; }
    TYPE& GetAt(int index) { return m_arValues[Checked(index)]; }
    const TYPE& ElementAt(int index) const { return m_arValues[Checked(index)]; }
    TYPE& ElementAt(int index) { return m_arValues[Checked(index)]; }
    const TYPE& operator[](int index) const { return m_arValues[Checked(index)]; }
    TYPE& operator[](int index) { return m_arValues[Checked(index)]; }
    void SetAt(int index, ARG_TYPE value) { m_arValues[Checked(index)] = value; }
    /// Sets the element, lengthening the list by default values where it ends before index.
    void SetAtGrow(int index, ARG_TYPE value) {
        HOST_ASSERT(index >= 0, "an index is not negative");
        TYPE copy(value); // value may lie in this very list
        if (index >= GetSize()) SetSize(index + 1);
        m_arValues[static_cast<std::size_t>(index)] = std::move(copy);
    }
    /// Appends and returns the index.
    int Add(ARG_TYPE value) {
        m_arValues.push_back(value);
        return GetUpperBound();
    }
    /// Appends all elements of another list and returns the index of the first.
    int Append(const CArray& other) {
        HOST_ASSERT(this != &other, "a list is not appended to itself");
        const int first = GetSize();
        m_arValues.insert(m_arValues.end(), other.m_arValues.begin(), other.m_arValues.end());
        return first;
    }
    void Copy(const CArray& other) { m_arValues = other.m_arValues; }
    /// Inserts count copies before index; an index beyond the end lengthens the list by default values first.
    void InsertAt(int index, ARG_TYPE value, int count = 1) {
        HOST_ASSERT(index >= 0 && count > 0, "an index is not negative, and something is inserted");
        const TYPE copy(value); // value may lie in this very list
        if (index > GetSize()) SetSize(index);
        m_arValues.insert(m_arValues.begin() + index, static_cast<std::size_t>(count), copy);
    }
    /// Inserts all elements of another list before index.
    void InsertAt(int index, const CArray* other) {
        HOST_ASSERT(index >= 0 && other && other != this, "another list is inserted at an index");
        if (index > GetSize()) SetSize(index);
        m_arValues.insert(m_arValues.begin() + index, other->m_arValues.begin(), other->m_arValues.end());
    }
    void RemoveAt(int index, int count = 1) {
        HOST_ASSERT(index >= 0 && count >= 0 && count <= GetSize() - index, "the part lies in the list");
        m_arValues.erase(m_arValues.begin() + index, m_arValues.begin() + index + count);
    }
    const TYPE* GetData() const { return m_arValues.data(); }
    TYPE* GetData() { return m_arValues.data(); }
    const TYPE* begin() const { return m_arValues.data(); }
    const TYPE* end() const { return m_arValues.data() + m_arValues.size(); }
    TYPE* begin() { return m_arValues.data(); }
    TYPE* end() { return m_arValues.data() + m_arValues.size(); }

private:
    std::size_t Checked(int index) const {
        HOST_ASSERT(index >= 0 && index < GetSize(), "the index lies in the list");
        return static_cast<std::size_t>(index);
    }

    std::vector<TYPE> m_arValues;
};

/// A list of texts.
class CStringArray : public CArray<CString, const CString&> {};

/// A place in a map; null when there is none.
using POSITION = struct CMapPlace*;

/// Values by key, walked in the order in which the keys came in. The key has == and std::hash.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap {
public:
    struct CPair {
        const KEY key;
        VALUE value;
    };

    CMap() = default;
    CMap(const CMap&) = delete;
    CMap& operator=(const CMap&) = delete;

    int GetCount() const { return static_cast<int>(m_mapPlaces.size()); }
    int GetSize() const { return GetCount(); }
    bool IsEmpty() const { return m_mapPlaces.empty(); }
    /// False, and value untouched, when the key is not there.
    bool Lookup(ARG_KEY key, VALUE& value) const {
        const CPair* pair = PLookup(key);
        if (pair) value = pair->value;
        return pair != nullptr;
    }
    const CPair* PLookup(ARG_KEY key) const {
        const auto place = m_mapPlaces.find(key);
        return place == m_mapPlaces.end() ? nullptr : &*place->second;
    }
    CPair* PLookup(ARG_KEY key) {
        const auto place = m_mapPlaces.find(key);
        return place == m_mapPlaces.end() ? nullptr : &*place->second;
    }
    /// The value of the key, which is added with a default value when it is not there.
    VALUE& operator[](ARG_KEY key) {
        const auto found = m_mapPlaces.find(key);
        if (found != m_mapPlaces.end()) return found->second->value;
        m_listPairs.push_back(CPair{KEY(key), VALUE()});
        m_mapPlaces.emplace(m_listPairs.back().key, std::prev(m_listPairs.end()));
        return m_listPairs.back().value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
    bool RemoveKey(ARG_KEY key) {
        const auto found = m_mapPlaces.find(key);
        if (found == m_mapPlaces.end()) return false;
        m_listPairs.erase(found->second);
        m_mapPlaces.erase(found);
        return true;
    }
    void RemoveAll() {
        m_mapPlaces.clear();
        m_listPairs.clear();
    }
    POSITION GetStartPosition() const {
        return m_listPairs.empty() ? nullptr : PositionOf(m_listPairs.begin());
    }
    /// Gives the pair at position and moves on, to null behind the last one.
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const {
        HOST_ASSERT(position != nullptr, "there is a next pair");
        const CPair* pair = reinterpret_cast<const CPair*>(position);
        key = pair->key;
        value = pair->value;
        const auto next = std::next(m_mapPlaces.find(pair->key)->second);
        position = next == m_listPairs.end() ? nullptr : PositionOf(next);
    }

private:
    using CPlace = typename std::list<CPair>::iterator;

    static POSITION PositionOf(typename std::list<CPair>::const_iterator place) {
        return reinterpret_cast<POSITION>(const_cast<CPair*>(&*place));
    }

    std::list<CPair> m_listPairs;
    std::unordered_map<KEY, CPlace> m_mapPlaces;
};
