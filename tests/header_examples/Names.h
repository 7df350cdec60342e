// Names that code examples of the headers use without declaring them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace {

// Stand for whatever a program does with a result.
template <class... T> void Show(const T&...) {}
template <class... T> void Use(const T&...) {}
template <class... T> void Open(const T&...) {}
template <class... T> void Write(const T&...) {}

} // namespace
