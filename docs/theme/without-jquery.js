// The theme's scripts call these three functions of jQuery, which newer versions of Doxygen do not include.
if (typeof $ === "undefined") {
  const whenReady = (action) => document.readyState === "loading" ?
    document.addEventListener("DOMContentLoaded", () => action()) : action();
  var $ = (subject) => {
    if (typeof subject === "function")
      return whenReady(subject);
    return {ready: whenReady, resize: (action) => subject.addEventListener("resize", action)};
  };
}
