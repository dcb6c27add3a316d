// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Google's own Node client against the local cloud. The environment names the server (CLOUD), the deployment file
// (DEPLOYMENT) and an access token (TOKEN); the client library is found through NODE_PATH.
const assert = require("node:assert");
const crypto = require("node:crypto");
const fs = require("node:fs");
const os = require("node:os");
const path = require("node:path");
const { Storage } = require("@google-cloud/storage");
const { OAuth2Client } = require("google-auth-library");

const deployment = JSON.parse(fs.readFileSync(process.env.DEPLOYMENT));
const folder = fs.mkdtempSync(path.join(os.tmpdir(), "nodeclient-"));

function client() {
    const authClient = new OAuth2Client();
    authClient.setCredentials({ access_token: process.env.TOKEN });
    const storage = new Storage({
        apiEndpoint: process.env.CLOUD, projectId: deployment.serviceAccount.project_id, authClient,
        useAuthWithCustomEndpoint: true, retryOptions: { autoRetry: false },
    });
    // Its resumable uploads leave the token out when the endpoint is not Google's own.
    storage.interceptors.push({ request: (options) => {
        options.headers = { ...options.headers, Authorization: `Bearer ${process.env.TOKEN}` };
        return options;
    } });
    return storage;
}

function localFile(name, size) {
    const file = path.join(folder, name);
    fs.writeFileSync(file, crypto.randomBytes(size));
    return file;
}

async function uploadsAndDownloads(bucket) {
    const uploads = { small: [4, {}], multipart: [300000, { resumable: false }], resumable: [3000000, { resumable: true }],
                      chunks: [3000000, { chunkSize: 1024 * 1024 }], empty: [0, {}] };
    for (const [name, [size, options]] of Object.entries(uploads)) {
        const source = localFile(name, size);
        const destination = `node/${name} 50%?#+ 北京`;
        await bucket.upload(source, { destination, metadata: { metadata: { kind: name } }, ...options });
        const target = path.join(folder, "back");
        await bucket.file(destination).download({ destination: target, validation: "crc32c" });
        assert.ok(fs.readFileSync(source).equals(fs.readFileSync(target)), name);
        const [metadata] = await bucket.file(destination).getMetadata();
        assert.strictEqual(metadata.metadata.kind, name);
        assert.strictEqual(metadata.md5Hash, crypto.createHash("md5").update(fs.readFileSync(source)).digest("base64"));
    }
}

async function listing(bucket) {
    for (let i = 0; i < 25; ++i)
        await bucket.file(`pages/${i % 5}/${i}.txt`).save(String(i), { resumable: false });
    const [files] = await bucket.getFiles({ prefix: "pages/", maxResults: 7, autoPaginate: true });
    assert.strictEqual(files.length, 7);
    const [all] = await bucket.getFiles({ prefix: "pages/" });
    assert.strictEqual(all.length, 25);
    const [, , response] = await bucket.getFiles({ prefix: "pages/", delimiter: "/", autoPaginate: false });
    assert.deepStrictEqual(response.prefixes, ["pages/0/", "pages/1/", "pages/2/", "pages/3/", "pages/4/"]);
}

async function conditions(bucket) {
    const file = bucket.file("node/once");
    await file.save("one", { resumable: false, preconditionOpts: { ifGenerationMatch: 0 } });
    await assert.rejects(file.save("two", { resumable: false, preconditionOpts: { ifGenerationMatch: 0 } }), { code: 412 });
    await assert.rejects(bucket.file("node/nothing").download(), { code: 404 });
    assert.deepStrictEqual(await bucket.file("node/nothing").exists(), [false]);
}

async function changes(bucket) {
    const file = bucket.file("node/once");
    await file.setMetadata({ contentType: "text/x-one", metadata: { a: "b" } });
    const [copy] = await file.copy(bucket.file("node/twice"));
    await copy.move("node/thrice");
    const moved = bucket.file("node/thrice");
    const [metadata] = await moved.getMetadata();
    assert.deepStrictEqual([metadata.contentType, metadata.metadata.a, metadata.size], ["text/x-one", "b", "3"]);
    const chunks = [];
    for await (const chunk of moved.createReadStream({ start: 1, end: 1 })) chunks.push(chunk);
    assert.strictEqual(Buffer.concat(chunks).toString(), "n");
    await moved.delete();
    assert.deepStrictEqual(await moved.exists(), [false]);
}

async function signedAddress(bucketName) {
    const signer = new Storage({ apiEndpoint: process.env.CLOUD, credentials: deployment.serviceAccount });
    const [url] = await signer.bucket(bucketName).file("node/once").getSignedUrl(
        { version: "v2", action: "read", expires: Date.now() + 60000 });
    assert.strictEqual(await (await fetch(url)).text(), "one");
    assert.strictEqual((await fetch(url.replace("node/once", "node/twice"))).status, 403);
}

async function main() {
    const bucket = client().bucket(deployment.bucket);
    assert.deepStrictEqual(await bucket.exists(), [true]);
    const steps = { uploadsAndDownloads, listing, conditions, changes };
    for (const [name, step] of Object.entries(steps)) {
        await step(bucket);
        console.log(`node client: ${name}`);
    }
    await signedAddress(deployment.bucket);
    console.log("node client: signedAddress");
}

main().finally(() => fs.rmSync(folder, { recursive: true })).catch((error) => { console.error(error); process.exit(1); });
