}} ]
Item {
    text: "open
    text: 'open {
    pattern: /open (
    text: "a\"
    text: "a" "b
    n: 5/
    /
    "
    /* open {

    * / still
