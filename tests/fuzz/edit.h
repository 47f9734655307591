// Changes of a scene's arguments. What the library promises to refuse or to survive may become anything; what tells it
// about memory may only become less or be refused, so that what the caller promises stays true.
#pragma once

#include "tests/fuzz/picture.h"

namespace fuzz {

// Changes the argument at a chosen place. What has to be put elsewhere for that goes to the spare memory.
void EditArgument(const test::Scene& scene, std::vector<test::Argument>& arguments, Choices& choices,
                  const Zone& spare);

// Functions that only tell numbers: no memory depends on what they are given.
bool IsQuery(const test::Export& function);
inline bool IsInit(const test::Scene& scene) { return scene.Has("Init"); }

// The memory that an address lies in; null if it is none of the scene's.
const test::Scene::Piece* PieceAt(const std::vector<test::Scene::Piece>& pieces, const void* address);

}  // namespace fuzz
