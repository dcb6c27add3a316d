// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/exchange.h"
#include "localcloud/storage/multipart.h"
#include "localcloud/storage/objectstore.h"

namespace localcloud {

/// An upload in one request. Its file goes with it unless it became an object's content.
class SingleUpload : public Exchange
{
public:
    SingleUpload(UploadFile file, ObjectStore& objects, const RequestHead& head, const BucketPlace& place);
    ~SingleUpload() override;
    SingleUpload(const SingleUpload&) = delete;
    SingleUpload& operator=(const SingleUpload&) = delete;

protected:
    /// Makes what arrived an object and answers with it. Throws a Refusal.
    Answer commit(const NewObject& object);

    UploadFile m_file;
    RequestHead m_head;

private:
    ObjectStore& m_objects;
    BucketPlace m_place;
};

/// An upload whose content is the body. The constructor throws a Refusal.
class MediaUpload : public SingleUpload
{
public:
    MediaUpload(UploadFile file, ObjectStore& objects, const RequestHead& head, const BucketPlace& place);

    void take(std::string_view piece) override;
    Answer finish() override;

private:
    NewObject m_object;
};

/// An upload whose metadata and content are the two parts of the body. The constructor throws a Refusal.
class MultipartUpload : public SingleUpload
{
public:
    MultipartUpload(UploadFile file, ObjectStore& objects, const RequestHead& head, const BucketPlace& place);

    void take(std::string_view piece) override;
    Answer finish() override;

private:
    MultipartReader m_reader;
};

} // namespace localcloud
